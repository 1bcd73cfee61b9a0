// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMBitmapHeader.h"

#include <algorithm>
#include <climits>

namespace {

constexpr std::size_t kFileHeaderSize = 14;
constexpr std::size_t kCoreSize = 12;     // OS/2 1: sides of 16 bits, three bytes for a colour of the palette
constexpr std::size_t kLeastSize = 16;    // OS/2 2 may leave out the rest
constexpr std::size_t kInfoSize = 40;     // the bit fields follow it
constexpr std::size_t kWithMasks = 52;    // in later headers they are a part of it
constexpr std::size_t kWithAlpha = 56;    // as well as that of alpha
constexpr std::size_t kLargestSize = 124; // version 5

/// Runs of 255 make 128 pixels of a byte. Lines and the picture may end early, so that a byte may stand for more, but a
/// picture that is as empty as this is not worth its memory.
constexpr std::uint64_t kMostRunPixelsOfAByte = 1024;

constexpr std::uint32_t kPlain = 0;
constexpr std::uint32_t kRle8 = 1;
constexpr std::uint32_t kRle4 = 2;
constexpr std::uint32_t kBitFields = 3;
constexpr std::uint32_t kAlphaBitFields = 6;

struct FormatRow {
    std::uint32_t compression;
    std::uint32_t bitsPerPixel;
    std::array<std::uint32_t, 4> masks; // all 0 when the file has them
};
constexpr FormatRow kFormats[] = {{kPlain, 1, {}},
                                  {kPlain, 4, {}},
                                  {kPlain, 8, {}},
                                  {kPlain, 16, {0x7C00, 0x03E0, 0x001F, 0}},
                                  {kPlain, 24, {0xFF0000, 0x00FF00, 0x0000FF, 0}},
                                  {kPlain, 32, {0xFF0000, 0x00FF00, 0x0000FF, 0}},
                                  {kRle8, 8, {}},
                                  {kRle4, 4, {}},
                                  {kBitFields, 16, {}},
                                  {kBitFields, 32, {}},
                                  {kAlphaBitFields, 16, {}},
                                  {kAlphaBitFields, 32, {}}};

std::uint32_t LittleEndian(std::span<const unsigned char> bytes, std::size_t at, std::size_t count) {
    std::uint32_t value = 0;
    for (std::size_t i = count; i > 0; --i) {
        value = value << 8U | bytes[at + i - 1];
    }
    return value;
}

/// The fields of a header of any age; those that it does not have are 0.
struct Fields {
    std::array<unsigned char, kLargestSize> bytes{};
    std::size_t size = 0; // with bit fields that follow the header

    [[nodiscard]] std::uint32_t Long(std::size_t at) const { return LittleEndian(bytes, at, 4); }
    [[nodiscard]] std::uint32_t Short(std::size_t at) const { return LittleEndian(bytes, at, 2); }
    [[nodiscard]] bool IsCore() const { return size == kCoreSize; }
    [[nodiscard]] std::uint32_t GetBitsPerPixel() const { return Short(IsCore() ? 10 : 14); }
    [[nodiscard]] std::uint32_t GetCompression() const { return Long(16); }
    [[nodiscard]] std::uint32_t GetColourCount() const { return Long(32); }
};

std::optional<Fields> CopyFields(std::span<const unsigned char> file) {
    if (file.size() < kFileHeaderSize + kCoreSize || file[0] != 'B' || file[1] != 'M') {
        return {};
    }
    const auto info = file.subspan(kFileHeaderSize);
    Fields fields;
    fields.size = LittleEndian(info, 0, 4);
    if (fields.size != kCoreSize && (fields.size < kLeastSize || fields.size > kLargestSize)) {
        return {};
    }
    std::copy_n(info.begin(), std::min(fields.size, info.size()), fields.bytes.begin());
    if (fields.size == kInfoSize && fields.GetCompression() == kBitFields) {
        fields.size = kWithMasks;
    } else if (fields.size == kInfoSize && fields.GetCompression() == kAlphaBitFields) {
        fields.size = kWithAlpha;
    }
    if (fields.size > info.size()) {
        return {};
    }
    std::copy_n(info.begin(), fields.size, fields.bytes.begin());
    return fields;
}

bool ReadSides(const Fields& fields, ZAMBitmapHeader& header) {
    if (fields.IsCore()) {
        header.width = fields.Short(4);
        header.height = fields.Short(6);
    } else {
        header.width = fields.Long(4);
        header.isTopDown = fields.Long(8) > INT_MAX;
        header.height = header.isTopDown ? 0U - fields.Long(8) : fields.Long(8);
    }
    return header.width > 0 && header.width <= INT_MAX && header.height > 0 && header.height <= INT_MAX;
}

bool ReadFormat(const Fields& fields, ZAMBitmapHeader& header) {
    const std::uint32_t compression = fields.GetCompression();
    const auto* const row = std::ranges::find_if(kFormats, [&](const FormatRow& format) {
        return format.compression == compression && format.bitsPerPixel == fields.GetBitsPerPixel();
    });
    if (row == std::end(kFormats)) {
        return false;
    }
    header.bitsPerPixel = row->bitsPerPixel;
    header.isRunLengthCoded = compression == kRle4 || compression == kRle8;
    header.masks = row->masks;
    if (compression == kBitFields || compression == kAlphaBitFields) {
        header.masks = {fields.Long(40), fields.Long(44), fields.Long(48), fields.Long(52)};
    }
    return true;
}

// The palette ends where the pixels begin, whatever its length is said to be.
void ReadPalette(std::span<const unsigned char> bytes, const Fields& fields, ZAMBitmapHeader& header) {
    header.palette.fill(0xFF000000U);
    if (header.bitsPerPixel > 8) {
        return;
    }
    const std::size_t colourSize = fields.IsCore() ? 3 : 4;
    const std::size_t most = std::min(std::size_t{1} << header.bitsPerPixel, bytes.size() / colourSize);
    const std::size_t count =
        fields.GetColourCount() == 0 ? most : std::min<std::size_t>(most, fields.GetColourCount());
    for (std::size_t i = 0; i < count; ++i) {
        header.palette[i] = 0xFF000000U | LittleEndian(bytes, i * colourSize, 3);
    }
}

bool IsPlausible(const ZAMBitmapHeader& header) {
    if (header.isRunLengthCoded) {
        return std::uint64_t{header.width} * header.height / kMostRunPixelsOfAByte <= header.data.size();
    }
    // The padding of the last row is often missing.
    return (header.height - 1) * header.GetStride() + header.GetRowSize() <= header.data.size();
}

} // namespace

std::optional<ZAMBitmapHeader> ZAMBitmapHeader::Read(std::span<const unsigned char> file) {
    const std::optional<Fields> fields = CopyFields(file);
    ZAMBitmapHeader header;
    if (!fields || !ReadSides(*fields, header) || !ReadFormat(*fields, header)) {
        return {};
    }
    const std::size_t headersEnd = kFileHeaderSize + fields->size;
    const std::size_t dataStart = LittleEndian(file, 10, 4);
    if (dataStart < headersEnd || dataStart > file.size()) {
        return {};
    }
    header.data = file.subspan(dataStart);
    ReadPalette(file.subspan(headersEnd, dataStart - headersEnd), *fields, header);
    return IsPlausible(header) ? std::optional(header) : std::nullopt;
}
