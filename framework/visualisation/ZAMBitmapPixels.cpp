// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMBitmapPixels.h"

#include "framework/visualisation/ZAMBitmapRuns.h"
#include "framework/visualisation/ZAMPixelArithmetic.h"

#include <algorithm>
#include <array>
#include <bit>

namespace {

/// A bit field: how to get 8 bits from it.
class Channel {
public:
    /// A field without bits always has the value `absent`.
    Channel(std::uint32_t mask, unsigned char absent) : _Mask(mask) {
        const int bits = std::popcount(mask);
        const int kept = std::min(bits, 8); // the uppermost
        _Shift = mask == 0 ? 0 : std::countr_zero(mask) + bits - kept;
        const std::uint32_t most = (1U << static_cast<unsigned int>(kept)) - 1U;
        _Levels[0] = mask == 0 ? absent : 0;
        for (std::uint32_t level = 1; level <= most; ++level) {
            _Levels[level] = static_cast<unsigned char>((level * 255U + most / 2U) / most);
        }
    }

    [[nodiscard]] bool IsOneRun() const {
        return _Mask == 0 || std::has_single_bit((_Mask >> std::countr_zero(_Mask)) + 1ULL);
    }

    [[nodiscard]] unsigned char Of(std::uint32_t word) const { return _Levels[(word & _Mask) >> _Shift]; }

private:
    std::uint32_t _Mask;
    int _Shift = 0;
    std::array<unsigned char, 256> _Levels{};
};

void DecodeIndices(const ZAMBitmapHeader& header, const unsigned char* row, std::uint32_t* pixels) {
    const unsigned int bits = header.bitsPerPixel;
    const unsigned int mask = (1U << bits) - 1U;
    for (std::size_t x = 0; x < header.width; ++x) {
        const std::size_t bit = x * bits;
        pixels[x] = header.palette[row[bit / 8] >> (8U - bits - bit % 8) & mask];
    }
}

class Fields {
public:
    explicit Fields(const ZAMBitmapHeader& header)
        : _Bytes(header.bitsPerPixel / 8), _Red(header.masks[0], 0), _Green(header.masks[1], 0),
          _Blue(header.masks[2], 0), _Alpha(header.masks[3], 255) {}

    [[nodiscard]] bool AreSound() const {
        return _Red.IsOneRun() && _Green.IsOneRun() && _Blue.IsOneRun() && _Alpha.IsOneRun();
    }

    void Decode(const unsigned char* row, std::size_t width, std::uint32_t* pixels) const {
        for (std::size_t x = 0; x < width; ++x, row += _Bytes) {
            std::uint32_t word = row[0] | static_cast<std::uint32_t>(row[1]) << 8U;
            word |= _Bytes > 2 ? static_cast<std::uint32_t>(row[2]) << 16U : 0U;
            word |= _Bytes > 3 ? static_cast<std::uint32_t>(row[3]) << 24U : 0U;
            pixels[x] = ZAMPremultiplied(_Red.Of(word), _Green.Of(word), _Blue.Of(word), _Alpha.Of(word));
        }
    }

private:
    std::size_t _Bytes;
    Channel _Red;
    Channel _Green;
    Channel _Blue;
    Channel _Alpha;
};

} // namespace

bool ZAMDecodeBitmap(const ZAMBitmapHeader& header, std::uint32_t* pixels) {
    if (header.isRunLengthCoded) {
        return ZAMBitmapRuns(header, pixels).Decode();
    }
    const Fields fields(header);
    if (!fields.AreSound()) {
        return false;
    }
    for (std::size_t y = 0; y < header.height; ++y) {
        const unsigned char* const row = header.data.data() + y * header.GetStride();
        std::uint32_t* const target = pixels + header.GetStartOfRow(y);
        if (header.bitsPerPixel <= 8) {
            DecodeIndices(header, row, target);
        } else {
            fields.Decode(row, header.width, target);
        }
    }
    return true;
}
