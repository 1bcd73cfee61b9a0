// SPDX-License-Identifier: MIT
#include "framework/images/ZAMImagesPngReader.h"

#include "framework/visualisation/ZAMPixelArithmetic.h"

#include <bit>
#include <csetjmp>
#include <cstring>
#include <png.h>
#include <span>

namespace {

/// Deflate gives at most this many bytes for one of its own (RFC 1951: 258 for two bits).
constexpr std::uint64_t kMostDeflateRatio = 1032;

/// All that the reading needs, made before libpng is called: what stands below its jump must own nothing.
struct Job {
    png_structp png = nullptr;
    png_infop info = nullptr;
    std::span<const unsigned char> data;
    std::size_t position = 0;
    const ZAMImagesSink* sink = nullptr;
    std::span<std::uint32_t> pixels;
    bool hasAlpha = false;

    Job() = default;
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;
    ~Job() { png_destroy_read_struct(&png, &info, nullptr); }
};

void TakeBytes(png_structp png, png_bytep bytes, std::size_t count) {
    Job& job = *static_cast<Job*>(png_get_io_ptr(png));
    if (count > job.data.size() - job.position) {
        png_error(png, "end");
    }
    std::memcpy(bytes, job.data.data() + job.position, count);
    job.position += count;
}

[[noreturn]] void Fail(png_structp png, png_const_charp /*message*/) {
    png_longjmp(png, 1);
}

void Ignore(png_structp /*png*/, png_const_charp /*message*/) {}

// Colours are taken as they are and texts are of no use; what is passed over unread cannot be inflated to gigabytes
// either. This leaves the chunks that make up the pixels.
void PassOverOtherChunks(png_structp png) {
    png_set_keep_unknown_chunks(png, PNG_HANDLE_CHUNK_NEVER, nullptr, -1);
    png_set_crc_action(png, PNG_CRC_ERROR_QUIT, PNG_CRC_ERROR_QUIT);
}

// Every colour type becomes four bytes of 8 bits a pixel. With alpha these are R, G, B, A; without they are the
// finished pixel: a word with its alpha, 0xFF, in the highest byte, and blue in the lowest.
void AskForPixels(Job& job) {
    const bool isLittle = std::endian::native == std::endian::little;
    job.hasAlpha = (png_get_color_type(job.png, job.info) & PNG_COLOR_MASK_ALPHA) != 0 ||
                   png_get_valid(job.png, job.info, PNG_INFO_tRNS) != 0;
    png_set_expand(job.png);
    png_set_scale_16(job.png);
    png_set_gray_to_rgb(job.png);
    if (!job.hasAlpha && isLittle) {
        png_set_bgr(job.png);
    }
    png_set_add_alpha(job.png, 0xFF, job.hasAlpha || isLittle ? PNG_FILLER_AFTER : PNG_FILLER_BEFORE);
}

void BeginPixels(Job& job) {
    const png_uint_32 width = png_get_image_width(job.png, job.info);
    const png_uint_32 height = png_get_image_height(job.png, job.info);
    if (std::uint64_t{height} * (png_get_rowbytes(job.png, job.info) + 1) / kMostDeflateRatio > job.data.size()) {
        png_error(job.png, "too few bytes");
    }
    std::uint32_t* const pixels = job.sink->begin(job.sink->target, width, height);
    if (pixels == nullptr) {
        png_error(job.png, "too many pixels");
    }
    job.pixels = {pixels, std::size_t{width} * height};
}

void ReadRows(Job& job) {
    AskForPixels(job);
    const int passes = png_set_interlace_handling(job.png);
    png_read_update_info(job.png, job.info);
    const std::size_t width = png_get_image_width(job.png, job.info);
    if (png_get_rowbytes(job.png, job.info) != width * 4) {
        png_error(job.png, "not four bytes a pixel");
    }
    for (int pass = 0; pass < passes; ++pass) {
        for (std::size_t start = 0; start < job.pixels.size(); start += width) {
            png_read_row(job.png, reinterpret_cast<png_bytep>(job.pixels.data() + start), nullptr);
        }
    }
}

/// libpng reports failures by a jump. It ends here, above frames that own nothing.
bool TryReadPicture(Job& job) {
    if (setjmp(png_jmpbuf(job.png)) != 0) {
        return false;
    }
    png_set_read_fn(job.png, &job, TakeBytes);
    PassOverOtherChunks(job.png);
    png_read_info(job.png, job.info);
    BeginPixels(job);
    ReadRows(job);
    png_read_end(job.png, nullptr);
    return true;
}

void MultiplyAlpha(std::span<std::uint32_t> pixels) {
    for (std::uint32_t& pixel : pixels) {
        unsigned char rgba[4];
        std::memcpy(rgba, &pixel, sizeof rgba);
        pixel = ZAMPremultiplied(rgba[0], rgba[1], rgba[2], rgba[3]);
    }
}

} // namespace

bool ZAMImagesReadPng(const unsigned char* data, std::size_t size, const ZAMImagesSink* sink) {
    Job job;
    job.png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, Fail, Ignore);
    job.info = job.png == nullptr ? nullptr : png_create_info_struct(job.png);
    job.data = {data, size};
    job.sink = sink;
    if (job.info == nullptr || !TryReadPicture(job)) {
        return false;
    }
    if (job.hasAlpha) {
        MultiplyAlpha(job.pixels);
    }
    return true;
}
