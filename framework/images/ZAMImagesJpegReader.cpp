// SPDX-License-Identifier: MIT
#include "framework/images/ZAMImagesJpegReader.h"

#include "framework/images/ZAMImagesJpegMarkers.h"
#include "framework/visualisation/ZAMPixelArithmetic.h"

#include <bit>
#include <cstring>
#include <memory>
#include <turbojpeg.h>

namespace {

/// Each block of 8 × 8 values takes a bit at least, and with the most unequal sampling there are half as many blocks as
/// there are squares of that size.
constexpr std::uint64_t kMostPixelsOfAByte = 8ULL * 64 * 2;

/// Each scan visits the whole picture, and an empty one costs a few bytes. Encoders make 10 of them; this bounds the
/// work to some seconds, and leaves a picture of a million pixels more scans than TurboJPEG admits.
constexpr std::uint64_t kMostPixelsScanned = 1ULL << 31U;

constexpr TJPF kPixelFormat = std::endian::native == std::endian::little ? TJPF_BGRA : TJPF_ARGB;

bool IsPlausible(const ZAMImagesJpegMarkers& markers) {
    const std::uint64_t pixels = std::uint64_t{markers.width} * markers.height;
    return pixels / kMostPixelsOfAByte <= markers.end && pixels * markers.scans <= kMostPixelsScanned;
}

// A warning is a failure too: the bytes may be handed on to readers that are less forgiving.
bool Decode(const unsigned char* data, const ZAMImagesJpegMarkers& markers, std::uint32_t* pixels) {
    const std::unique_ptr<void, int (*)(tjhandle)> decoder(tjInitDecompress(), tjDestroy);
    const int width = static_cast<int>(markers.width);
    return decoder != nullptr &&
           tjDecompress2(decoder.get(), data, markers.end, reinterpret_cast<unsigned char*>(pixels), width, width * 4,
                         static_cast<int>(markers.height), markers.components == 4 ? TJPF_CMYK : kPixelFormat,
                         TJFLAG_STOPONWARNING | TJFLAG_LIMITSCANS) == 0;
}

// From C, M, Y, K, which files with an Adobe marker hold inverted: there 255 is no ink.
void ConvertCmyk(std::uint32_t* pixels, std::size_t count, bool isInverted) {
    const unsigned char inversion = isInverted ? 0 : 0xFF;
    for (std::uint32_t* pixel = pixels; pixel != pixels + count; ++pixel) {
        unsigned char cmyk[4];
        std::memcpy(cmyk, pixel, sizeof cmyk);
        const auto lightOf = [&](int ink) {
            return ZAMMultipliedBy255th(static_cast<unsigned char>(cmyk[ink] ^ inversion),
                                        static_cast<unsigned char>(cmyk[3] ^ inversion));
        };
        *pixel = ZAMPremultiplied(lightOf(0), lightOf(1), lightOf(2), 255);
    }
}

// PDF takes three components as YCbCr unless an Adobe marker says otherwise, while TurboJPEG heeds more signs. Four
// components are inks to PDF, and cairo writes no /Decode array for those that are inverted.
bool IsUsableInPdf(const ZAMImagesJpegMarkers& markers) {
    if (markers.components == 4) {
        return !markers.hasAdobe;
    }
    const bool isRgbInPdf = markers.hasAdobe && markers.adobeTransform == 0;
    const bool isRgbHere = !markers.hasJfif && (markers.hasAdobe ? isRgbInPdf : markers.hasRgbNames);
    return markers.components == 1 || isRgbInPdf == isRgbHere;
}

} // namespace

bool ZAMImagesReadJpeg(const unsigned char* data, std::size_t size, const ZAMImagesSink* sink,
                       std::size_t* usableSize) {
    const std::optional<ZAMImagesJpegMarkers> markers = ZAMImagesReadJpegMarkers({data, size});
    if (!markers || !IsPlausible(*markers)) {
        return false;
    }
    std::uint32_t* const pixels = sink->begin(sink->target, markers->width, markers->height);
    if (pixels == nullptr || !Decode(data, *markers, pixels)) {
        return false;
    }
    if (markers->components == 4) {
        ConvertCmyk(pixels, std::size_t{markers->width} * markers->height, markers->hasAdobe);
    }
    *usableSize = IsUsableInPdf(*markers) ? markers->end : 0;
    return true;
}
