// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMBaseUnknown.h"
#include "framework/base/ZAMExport.h"
#include "framework/base/ZAMRef.h"
#include "framework/base/ZAMUnicodeString.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

/// Handed on by those who read images; it has no effect.
enum class ZAMReadOnlyState : std::uint8_t { Memory = 0, File = 1 };

/// A picture made of pixels. It never changes, so threads may share it.
class ZAM_EXPORT ZAMPixelImage : public ZAMBaseUnknown {
public:
    using Bytes = std::vector<unsigned char>;

    /// `pixels` are width × height, the top row first, each 0xAARRGGBB with the colours multiplied by the alpha. `jpeg`
    /// is the JPEG file (ISO/IEC 10918-1) that they come from, or null. The sides are positive.
    ZAMPixelImage(int width, int height, std::unique_ptr<std::uint32_t[]> pixels,
                  std::shared_ptr<const Bytes> jpeg = nullptr);
    /// The same with a copy of the pixels; those that are missing are transparent.
    ZAMPixelImage(int width, int height, std::span<const std::uint32_t> pixels,
                  std::shared_ptr<const Bytes> jpeg = nullptr);
    ~ZAMPixelImage() override;

    /// Reads a PNG (ISO 15948), JPEG or BMP file, told apart by its first bytes. Null when the file is not there, is no
    /// regular file, is not allowed (ZAMFileAccessPolicy), is none of these or is damaged.
    [[nodiscard]] static ZAMRef<ZAMPixelImage> CreateFromFile(const ZAMString& fileName, ZAMReadOnlyState state,
                                                              int reserved);

    [[nodiscard]] int GetWidth() const { return _Width; }
    [[nodiscard]] int GetHeight() const { return _Height; }
    [[nodiscard]] std::span<const std::uint32_t> GetPixels() const {
        return {_Pixels.get(), static_cast<std::size_t>(_Width) * static_cast<std::size_t>(_Height)};
    }
    /// Every pixel has the alpha 255.
    [[nodiscard]] bool IsOpaque() const { return _IsOpaque; }
    /// The JPEG file that the pixels come from, for outputs that take it as it is; empty for other pictures.
    [[nodiscard]] std::span<const unsigned char> GetJpeg() const;

private:
    int _Width;
    int _Height;
    std::unique_ptr<std::uint32_t[]> _Pixels;
    std::shared_ptr<const Bytes> _Jpeg;
    bool _IsOpaque;
};
