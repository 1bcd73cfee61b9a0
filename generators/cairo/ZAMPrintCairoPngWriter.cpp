// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoPngWriter.h"

#include "generators/cairo/ZAMPrintCairoFailure.h"
#include "generators/cairo/ZAMPrintCairoMetadata.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <csetjmp>
#include <cstdint>
#include <cstring>
#include <optional>
#include <png.h>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace {

/// Level 4 takes twice the time.
constexpr int kCompressionLevel = 3;

/// A picture in cairo's memory: native-endian words, alpha in the highest byte, colours multiplied with it.
struct Pixels {
    const unsigned char* bytes;
    int width;
    int height;
    int stride;

    [[nodiscard]] const unsigned char* Row(int y) const { return bytes + static_cast<std::ptrdiff_t>(y) * stride; }
    [[nodiscard]] std::uint32_t At(const unsigned char* row, int x) const {
        std::uint32_t pixel = 0;
        std::memcpy(&pixel, row + static_cast<std::ptrdiff_t>(x) * 4, sizeof pixel);
        return pixel;
    }
};

bool IsOpaque(const Pixels& pixels) {
    for (int y = 0; y < pixels.height; ++y) {
        std::uint32_t common = 0xFF000000U;
        for (int x = 0; x < pixels.width; ++x) {
            common &= pixels.At(pixels.Row(y), x);
        }
        if (common != 0xFF000000U) {
            return false;
        }
    }
    return true;
}

unsigned char Unmultiply(std::uint32_t component, std::uint32_t alpha) {
    return static_cast<unsigned char>(std::min(255U, (component * 255U + alpha / 2U) / alpha));
}

void ConvertToRgb(const Pixels& pixels, int y, unsigned char* out) {
    for (int x = 0; x < pixels.width; ++x) {
        const std::uint32_t pixel = pixels.At(pixels.Row(y), x);
        *out++ = static_cast<unsigned char>(pixel >> 16U);
        *out++ = static_cast<unsigned char>(pixel >> 8U);
        *out++ = static_cast<unsigned char>(pixel);
    }
}

void ConvertToRgba(const Pixels& pixels, int y, unsigned char* out) {
    for (int x = 0; x < pixels.width; ++x) {
        const std::uint32_t pixel = pixels.At(pixels.Row(y), x);
        const std::uint32_t alpha = pixel >> 24U;
        const bool isPlain = alpha == 0 || alpha == 255;
        for (const unsigned int shift : {16U, 8U, 0U}) {
            const std::uint32_t component = pixel >> shift & 0xFFU;
            *out++ = isPlain ? static_cast<unsigned char>(component) : Unmultiply(component, alpha);
        }
        *out++ = static_cast<unsigned char>(alpha);
    }
}

// Libpng asks for memory that may be changed, though it changes nothing.
struct Text {
    std::array<char, 12> key;
    std::string value;
};

/// All that the writing needs, made before libpng is called: what stands below its jump must own nothing.
struct Job {
    png_structp png = nullptr;
    png_infop info = nullptr;
    Pixels pixels{};
    bool isOpaque = false;
    int filter = PNG_FILTER_NONE;   // drawings are even areas, which filters make larger
    png_uint_32 pixelsPerMetre = 0; // 0 to say nothing of it
    std::vector<Text> texts;
    std::optional<std::tm> time;
    std::vector<unsigned char> row;

    Job() = default;
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;
    ~Job() { png_destroy_write_struct(&png, &info); }
};

void WriteBytes(png_structp png, png_bytep bytes, std::size_t count) {
    if (!static_cast<ZAMPrintCairoStream*>(png_get_io_ptr(png))->Write(bytes, count)) {
        png_error(png, "write");
    }
}

void FlushBytes(png_structp /*png*/) {}

[[noreturn]] void Fail(png_structp png, png_const_charp /*message*/) {
    png_longjmp(png, 1);
}

void Ignore(png_structp /*png*/, png_const_charp /*message*/) {}

// PNG wants keywords in Latin-1 and short, texts in UTF-8 as iTXt.
void WriteTexts(Job& job) {
    for (Text& text : job.texts) {
        png_text entry{};
        entry.compression = PNG_ITXT_COMPRESSION_NONE;
        entry.key = text.key.data();
        entry.text = text.value.data();
        png_set_text(job.png, job.info, &entry, 1);
    }
}

void WriteTime(const Job& job) {
    if (job.time) {
        png_time time{};
        png_convert_from_struct_tm(&time, &*job.time);
        png_set_tIME(job.png, job.info, &time);
    }
}

void WritePicture(Job& job) {
    png_set_compression_level(job.png, kCompressionLevel);
    png_set_filter(job.png, PNG_FILTER_TYPE_BASE, job.filter);
    png_set_IHDR(job.png, job.info, static_cast<png_uint_32>(job.pixels.width),
                 static_cast<png_uint_32>(job.pixels.height), 8,
                 job.isOpaque ? PNG_COLOR_TYPE_RGB : PNG_COLOR_TYPE_RGBA, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    if (job.pixelsPerMetre != 0) {
        png_set_pHYs(job.png, job.info, job.pixelsPerMetre, job.pixelsPerMetre, PNG_RESOLUTION_METER);
    }
    WriteTexts(job);
    WriteTime(job);
    png_write_info(job.png, job.info);
    for (int y = 0; y < job.pixels.height; ++y) {
        (job.isOpaque ? ConvertToRgb : ConvertToRgba)(job.pixels, y, job.row.data());
        png_write_row(job.png, job.row.data());
    }
    png_write_end(job.png, job.info);
}

/// libpng reports failures by a jump. It ends here, above frames that own nothing.
bool TryWritePicture(Job& job) {
    if (setjmp(png_jmpbuf(job.png)) != 0) {
        return false;
    }
    WritePicture(job);
    return true;
}

/// Writes the picture with what else the job has.
void Run(Job& job, cairo_surface_t* picture, ZAMPrintCairoStream& stream) {
    cairo_surface_flush(picture);
    job.png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, Fail, Ignore);
    job.info = job.png == nullptr ? nullptr : png_create_info_struct(job.png);
    if (job.info == nullptr) {
        throw std::bad_alloc();
    }
    png_set_write_fn(job.png, &stream, WriteBytes, FlushBytes);
    job.pixels = {cairo_image_surface_get_data(picture), cairo_image_surface_get_width(picture),
                  cairo_image_surface_get_height(picture), cairo_image_surface_get_stride(picture)};
    job.isOpaque = cairo_image_surface_get_format(picture) == CAIRO_FORMAT_RGB24 || IsOpaque(job.pixels);
    job.row.resize(static_cast<std::size_t>(job.pixels.width) * 4);
    if (!TryWritePicture(job)) {
        throw ZAMPrintCairoFailure(stream.IsGood() ? "cannot encode the picture" : "cannot write the output");
    }
}

} // namespace

void ZAMPrintCairoPngWriter::Write(cairo_surface_t* picture, double resolution, const ZAMPrintMetadata& metadata,
                                   ZAMPrintCairoStream& stream) {
    Job job;
    job.pixelsPerMetre = static_cast<png_uint_32>(std::clamp(std::round(resolution / 0.0254), 1.0, 2147483647.0));
    const Text texts[] = {{{"Title"}, metadata.title},
                          {{"Author"}, metadata.author},
                          {{"Description"}, metadata.subject},
                          {{"Software"}, ZAMPrintCairoMetadata::kCreator}};
    for (const Text& text : texts) {
        std::string value = ZAMPrintCairoMetadata::KeepCharacters(text.value);
        if (!value.empty()) {
            job.texts.push_back({text.key, std::move(value)});
        }
    }
    if (metadata.creationTime) {
        job.time = ZAMPrintCairoMetadata::ToCalendar(*metadata.creationTime);
    }
    Run(job, picture, stream);
}

std::string ZAMPrintCairoPngWriter::Encode(cairo_surface_t* picture) {
    std::ostringstream file;
    ZAMPrintCairoStream stream(file);
    Job job;
    job.filter = PNG_FILTER_UP; // for photographs
    Run(job, picture, stream);
    return std::move(file).str();
}
