// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressPng.h"

#include <algorithm>
#include <array>
#include <memory>
#include <new>
#include <string_view>
#include <utility>
#include <zlib.h>

namespace {

using Bytes = std::string;
using Pixels = std::vector<std::uint32_t>;

constexpr std::size_t kPaletteSize = 256;

// The colour types of a header (ISO 15948, 11.2.2).
enum class ColourType : char { Rgb = 2, Palette = 3, Rgba = 6 };

char ToChar(std::uint32_t byte) {
    return static_cast<char>(static_cast<unsigned char>(byte & 0xFFU));
}

void AddNumber(Bytes& bytes, std::uint32_t number) {
    for (const unsigned int shift : {24U, 16U, 8U, 0U}) {
        bytes += ToChar(number >> shift);
    }
}

void AddChunk(Bytes& file, std::string_view type, std::string_view data) {
    AddNumber(file, static_cast<std::uint32_t>(data.size()));
    const std::size_t start = file.size();
    file.append(type).append(data);
    const auto* const checked = reinterpret_cast<const Bytef*>(file.data() + start);
    AddNumber(file, static_cast<std::uint32_t>(crc32(0, checked, static_cast<uInt>(file.size() - start))));
}

// The colours of a picture in the order in which they come up, and each pixel as the number of its colour.
class Palette {
public:
    /// False when there are too many colours.
    bool Read(const Pixels& pixels) {
        _Indices.reserve(pixels.size());
        return std::ranges::all_of(pixels, [this](std::uint32_t pixel) { return Add(pixel); });
    }
    [[nodiscard]] const Pixels& GetColours() const { return _Colours; }
    [[nodiscard]] Bytes TakeIndices() { return std::move(_Indices); }

private:
    static constexpr std::size_t kPlaces = 1024; // of a hash table that is never more than a quarter full

    bool Add(std::uint32_t pixel) {
        constexpr std::uint32_t kGolden = 2654435769; // spreads what it multiplies over the upper bits
        std::size_t place = static_cast<std::uint32_t>(pixel * kGolden) >> 22U;
        while (_Numbers[place] != 0 && _Colours[_Numbers[place] - 1U] != pixel) {
            place = (place + 1) % kPlaces;
        }
        if (_Numbers[place] == 0) {
            if (_Colours.size() == kPaletteSize) {
                return false;
            }
            _Colours.push_back(pixel);
            _Numbers[place] = static_cast<std::uint16_t>(_Colours.size());
        }
        _Indices += ToChar(_Numbers[place] - 1U);
        return true;
    }

    Pixels _Colours;
    std::array<std::uint16_t, kPlaces> _Numbers{}; // of colours, from 1 on
    Bytes _Indices;
};

void AddColour(Bytes& bytes, std::uint32_t pixel) {
    bytes += ToChar(pixel >> 16U);
    bytes += ToChar(pixel >> 8U);
    bytes += ToChar(pixel);
}

Bytes ToChannels(const Pixels& pixels, bool withAlpha) {
    Bytes bytes;
    bytes.reserve(pixels.size() * (withAlpha ? 4 : 3));
    for (const std::uint32_t pixel : pixels) {
        AddColour(bytes, pixel);
        if (withAlpha) {
            bytes += ToChar(pixel >> 24U);
        }
    }
    return bytes;
}

// Each row less its left neighbour, pixel by pixel: the filter Sub of ISO 15948, 9.2.
Bytes FilterRows(std::string_view bytes, std::size_t rowSize, std::size_t pixelSize) {
    constexpr char kSub = 1;
    Bytes result(bytes.size() + bytes.size() / rowSize, kSub);
    char* filtered = result.data();
    for (std::size_t start = 0; start < bytes.size(); start += rowSize) {
        const std::string_view row = bytes.substr(start, rowSize);
        filtered = std::ranges::copy(row.substr(0, pixelSize), ++filtered).out;
        filtered =
            std::ranges::transform(row.substr(pixelSize), row, filtered, [](unsigned char byte, unsigned char left) {
                return static_cast<char>(byte - left);
            }).out;
    }
    return result;
}

// The pictures are unpacked again at once: quickly matters more than tightly. Neighbours in gradients differ by little,
// which the filter turns into runs of the same byte.
Bytes Compress(Bytes bytes) {
    constexpr int kWindowBits = 9; // runs look back a single byte
    constexpr int kMemory = 5;     // little of it, for most pictures are small
    z_stream stream{};
    if (deflateInit2(&stream, Z_BEST_SPEED, Z_DEFLATED, kWindowBits, kMemory, Z_RLE) != Z_OK) {
        throw std::bad_alloc();
    }
    const std::unique_ptr<z_stream, int (*)(z_stream*)> end(&stream, deflateEnd);
    Bytes result(deflateBound(&stream, static_cast<uLong>(bytes.size())), '\0');
    stream.next_in = reinterpret_cast<Bytef*>(bytes.data());
    stream.avail_in = static_cast<uInt>(bytes.size());
    stream.next_out = reinterpret_cast<Bytef*>(result.data());
    stream.avail_out = static_cast<uInt>(result.size());
    deflate(&stream, Z_FINISH);
    result.resize(stream.total_out);
    return result;
}

Bytes MakeHeader(const ZAMPrepressPicture& picture, ColourType type) {
    Bytes header;
    AddNumber(header, static_cast<std::uint32_t>(picture.width));
    AddNumber(header, static_cast<std::uint32_t>(picture.height));
    header += '\x08'; // bits
    header += static_cast<char>(type);
    header.append(3, '\0'); // deflate, the five filters, not interlaced
    return header;
}

void AddPalette(Bytes& file, const Pixels& colours, bool withAlpha) {
    Bytes palette;
    Bytes alphas;
    for (const std::uint32_t colour : colours) {
        AddColour(palette, colour);
        alphas += ToChar(colour >> 24U);
    }
    AddChunk(file, "PLTE", palette);
    if (withAlpha) {
        AddChunk(file, "tRNS", alphas);
    }
}

} // namespace

std::string ZAMPrepressWritePng(const ZAMPrepressPicture& picture) {
    const bool withAlpha =
        std::ranges::any_of(picture.pixels, [](std::uint32_t pixel) { return pixel >> 24U != 255U; });
    Palette palette;
    const bool hasPalette = palette.Read(picture.pixels);
    const ColourType fullType = withAlpha ? ColourType::Rgba : ColourType::Rgb;
    const Bytes bytes = hasPalette ? palette.TakeIndices() : ToChannels(picture.pixels, withAlpha);
    const std::size_t pixelSize = bytes.size() / picture.pixels.size();

    Bytes file("\x89PNG\r\n\x1A\n");
    AddChunk(file, "IHDR", MakeHeader(picture, hasPalette ? ColourType::Palette : fullType));
    if (hasPalette) {
        AddPalette(file, palette.GetColours(), withAlpha);
    }
    AddChunk(file, "IDAT", Compress(FilterRows(bytes, picture.width * pixelSize, pixelSize)));
    AddChunk(file, "IEND", {});
    return file;
}
