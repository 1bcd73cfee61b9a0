// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

/// The size of a picture in pixels.
struct ZAMPrepressPixels {
    std::size_t width = 1;
    std::size_t height = 1;

    [[nodiscard]] std::size_t GetCount() const { return width * height; }
    /// The size with about the same proportions and no more pixels than that, which is at least 1.
    [[nodiscard]] ZAMPrepressPixels Within(std::size_t count) const;
    /// One that has at least as many pixels both ways as each of the two.
    [[nodiscard]] ZAMPrepressPixels UnitedWith(const ZAMPrepressPixels& other) const;
};
