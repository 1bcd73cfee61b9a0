// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

// What the images module offers to the layer that opens it. The module is the only place that names the picture
// libraries; it is opened with the first PNG or JPEG. Only plain data crosses.

/// Where a picture goes.
struct ZAMImagesSink {
    void* target;
    /// Called at most once, as soon as the size is known: room for width × height pixels, or null to stop. Both sides
    /// are positive. It must not throw: there is C code below it.
    std::uint32_t* (*begin)(void* target, std::uint32_t width, std::uint32_t height);
};

/// All functions may be called from several threads. They give false for a picture that is not whole and sound; what
/// they have written by then is worth nothing. Else every pixel is written, as ZAMPixelImage wants it.
struct ZAMPrintImagesTable {
    bool (*readPng)(const unsigned char* data, std::size_t size, const ZAMImagesSink* sink);
    /// `usableSize` is how many of the bytes make up the JPEG file for outputs that take it as it is, or 0 when those
    /// would show it otherwise than the pixels do.
    bool (*readJpeg)(const unsigned char* data, std::size_t size, const ZAMImagesSink* sink, std::size_t* usableSize);
};

/// The module's one symbol, "ZAMPrintImagesGetTable".
using ZAMPrintImagesGetTableFunction = const ZAMPrintImagesTable*();
