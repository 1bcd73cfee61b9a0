// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

/// A colour with its opacity, as 0xRRGGBBAA.
struct Pixel {
    std::uint32_t rgba = 0;

    /// No component differs by more than `tolerance`.
    [[nodiscard]] bool IsNear(std::uint32_t other, int tolerance = 2) const;
};

std::ostream& operator<<(std::ostream& out, const Pixel& pixel);

/// A decoded PNG.
class Picture {
public:
    /// Empty, of size 0 x 0, when the bytes are no complete PNG.
    explicit Picture(const std::string& png);

    int width = 0;
    int height = 0;
    bool hasAlpha = false;
    [[nodiscard]] Pixel At(int x, int y) const;

private:
    std::vector<unsigned char> _Bytes;
};

/// The only page of a PDF as a program ("pdftoppm", "pdftocairo") shows it.
Picture Rasterise(const std::string& pdf, const std::string& program, int resolution);
