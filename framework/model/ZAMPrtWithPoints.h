// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/base/ZAMLimits.h"
#include "framework/mathematics/ZAMMathPoint2D.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <span>

/// Gives an element class a list of points, on top of the attributes of `Base`. Copies of the element share the list.
template <class Base> class ZAM_EXPORT ZAMPrtWithPoints : public Base {
public:
    /// Copies `count` points, which may be the element's own; fewer than one leave it without points.
    void SetPoints(const ZAMMathPoint2D* points, int count) {
        const std::size_t copied = points == nullptr || count < 1 ? 0 : static_cast<std::size_t>(count);
        const auto own = _Points; // kept until they are copied
        std::copy_n(points, copied, NewPoints(copied).begin());
    }
    /// Gives the element a new list of `count` points, for the caller to fill before anybody reads or copies it.
    std::span<ZAMMathPoint2D> NewPoints(std::size_t count) {
        const auto points = count == 0 ? nullptr : std::make_shared<ZAMMathPoint2D[]>(count);
        _Points = points;
        _Count = count;
        return {points.get(), count};
    }
    [[nodiscard]] std::span<const ZAMMathPoint2D> GetPoints() const { return {_Points.get(), _Count}; }

    [[nodiscard]] std::size_t GetCost() const override { return 1 + GetPoints().size() / ZAMLimits::kPointsForOne; }

private:
    std::shared_ptr<const ZAMMathPoint2D[]> _Points; // the list and its owners' count in one piece of memory
    std::size_t _Count = 0;
};
