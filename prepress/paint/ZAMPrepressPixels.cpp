// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressPixels.h"

#include <algorithm>
#include <cmath>

ZAMPrepressPixels ZAMPrepressPixels::Within(std::size_t count) const {
    if (GetCount() <= count) {
        return *this;
    }
    const double share = std::sqrt(static_cast<double>(count) / static_cast<double>(GetCount()));
    const auto columns = static_cast<std::size_t>(static_cast<double>(width) * share);
    const std::size_t newWidth = std::clamp<std::size_t>(columns, 1, std::min(width, count));
    return {newWidth, std::clamp<std::size_t>(count / newWidth, 1, height)};
}

ZAMPrepressPixels ZAMPrepressPixels::UnitedWith(const ZAMPrepressPixels& other) const {
    return {std::max(width, other.width), std::max(height, other.height)};
}
