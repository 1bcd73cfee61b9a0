// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathPoint2D.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <span>
#include <variant>

/// The points of an element. Copies share the points, but for a few, which stand in the list itself: a path is many
/// pieces of two to four points, and each would cost a piece of memory more.
class ZAMPrtPointList {
public:
    ZAMPrtPointList() = default;
    /// Copies the points.
    explicit ZAMPrtPointList(std::span<const ZAMMathPoint2D> points) {
        std::ranges::copy(points, Renew(points.size()).begin());
    }

    /// Makes it `count` points that no copy shares, for the caller to fill before the list is read or copied. When
    /// memory is out it throws std::bad_alloc and stays as it was.
    std::span<ZAMMathPoint2D> Renew(std::size_t count) {
        ZAMMathPoint2D* points = nullptr;
        if (count <= std::tuple_size_v<Few>) {
            points = _Points.emplace<Few>().data();
        } else {
            const auto many = std::make_shared<ZAMMathPoint2D[]>(count);
            points = many.get();
            _Points = Many(many);
        }
        _Count = count;
        return {points, count};
    }

    [[nodiscard]] std::span<const ZAMMathPoint2D> Get() const {
        const Many* const many = std::get_if<Many>(&_Points);
        return {many != nullptr ? many->get() : std::get_if<Few>(&_Points)->data(), _Count};
    }

private:
    using Few = std::array<ZAMMathPoint2D, 4>; // a cubic Bezier curve
    using Many = std::shared_ptr<const ZAMMathPoint2D[]>;

    std::variant<Few, Many> _Points;
    std::size_t _Count = 0;
};
