// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// One pixel: red, green, blue.
using PictureColour = std::array<std::uint8_t, 3>;

constexpr PictureColour kPaper = {255, 255, 255};

/// Pixels as they look on white paper, row by row from the top.
class Picture {
public:
    /// All paper.
    Picture(std::size_t width, std::size_t height) : _Width(width), _Height(height), _Pixels(width * height, kPaper) {}

    /// A PNG file, what is transparent in it laid on white; nothing when it is no complete PNG.
    static std::optional<Picture> Read(const std::string& fileName);

    [[nodiscard]] bool Write(const std::string& fileName) const;

    [[nodiscard]] std::size_t GetWidth() const { return _Width; }
    [[nodiscard]] std::size_t GetHeight() const { return _Height; }

    [[nodiscard]] PictureColour& At(std::size_t x, std::size_t y) { return _Pixels[y * _Width + x]; }
    [[nodiscard]] const PictureColour& At(std::size_t x, std::size_t y) const { return _Pixels[y * _Width + x]; }

    /// Copies all of `other` to where its upper left corner is at x, 0; it must fit.
    void Place(const Picture& other, std::size_t x);

private:
    std::size_t _Width;
    std::size_t _Height;
    std::vector<PictureColour> _Pixels;
};
