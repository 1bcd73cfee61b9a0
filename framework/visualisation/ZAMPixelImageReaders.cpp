// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMPixelImageReaders.h"

#include "framework/visualisation/ZAMBitmapHeader.h"
#include "framework/visualisation/ZAMBitmapPixels.h"
#include "framework/visualisation/ZAMImagesModule.h"
#include "framework/visualisation/ZAMPixelCanvas.h"

#include <algorithm>
#include <array>
#include <exception>
#include <optional>

namespace {

constexpr std::array<unsigned char, 8> kPngSignature{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
constexpr std::array<unsigned char, 3> kJpegSignature{0xFF, 0xD8, 0xFF};

// The module for data that begins with the signature; other data does not load it.
const ZAMPrintImagesTable* ModuleFor(std::span<const unsigned char> data, std::span<const unsigned char> signature) {
    const bool begins = data.size() >= signature.size() && std::ranges::equal(data.first(signature.size()), signature);
    return begins ? ZAMOpenImagesModule() : nullptr;
}

ZAMImagesSink SinkOf(ZAMPixelCanvas& canvas) {
    return {&canvas, [](void* target, std::uint32_t width, std::uint32_t height) {
                return static_cast<ZAMPixelCanvas*>(target)->Begin(width, height);
            }};
}

std::shared_ptr<const ZAMPixelImage::Bytes> CopyOf(std::span<const unsigned char> bytes) {
    return bytes.empty() ? nullptr : std::make_shared<const ZAMPixelImage::Bytes>(bytes.begin(), bytes.end());
}

template <class Work> ZAMRef<ZAMPixelImage> WithoutExceptions(const Work& work) {
    try {
        return work();
    } catch (const std::exception&) {
        return {};
    }
}

} // namespace

ZAMRef<ZAMPixelImage> ReadMemoryPNGPixelImage(std::span<const unsigned char> data, ZAMReadOnlyState /*state*/) {
    return WithoutExceptions([&]() -> ZAMRef<ZAMPixelImage> {
        const ZAMPrintImagesTable* const module = ModuleFor(data, kPngSignature);
        ZAMPixelCanvas canvas;
        const ZAMImagesSink sink = SinkOf(canvas);
        if (module == nullptr || !module->readPng(data.data(), data.size(), &sink)) {
            return {};
        }
        return canvas.Finish();
    });
}

ZAMRef<ZAMPixelImage> ReadMemoryJPEGPixelImage(std::span<const unsigned char> data, ZAMReadOnlyState /*state*/) {
    return WithoutExceptions([&]() -> ZAMRef<ZAMPixelImage> {
        const ZAMPrintImagesTable* const module = ModuleFor(data, kJpegSignature);
        ZAMPixelCanvas canvas;
        const ZAMImagesSink sink = SinkOf(canvas);
        std::size_t usableSize = 0;
        if (module == nullptr || !module->readJpeg(data.data(), data.size(), &sink, &usableSize)) {
            return {};
        }
        return canvas.Finish(CopyOf(data.first(usableSize)));
    });
}

ZAMRef<ZAMPixelImage> ReadMemBMPPixelImage(std::span<const unsigned char> data, ZAMReadOnlyState /*state*/) {
    return WithoutExceptions([&]() -> ZAMRef<ZAMPixelImage> {
        const std::optional<ZAMBitmapHeader> header = ZAMBitmapHeader::Read(data);
        ZAMPixelCanvas canvas;
        std::uint32_t* const pixels = header ? canvas.Begin(header->width, header->height) : nullptr;
        if (pixels == nullptr || !ZAMDecodeBitmap(*header, pixels)) {
            return {};
        }
        return canvas.Finish();
    });
}
