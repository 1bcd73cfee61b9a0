// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/base/ZAMLimits.h"
#include "framework/model/ZAMPrtPointList.h"

#include <cstddef>
#include <span>

/// Gives an element class a list of points, on top of the attributes of `Base`. Copies of the element share the list
/// unless it is short.
template <class Base> class ZAM_EXPORT ZAMPrtWithPoints : public Base {
public:
    /// Copies `count` points, which may be the element's own; fewer than one leave it without points.
    void SetPoints(const ZAMMathPoint2D* points, int count) {
        const std::size_t copied = points == nullptr || count < 1 ? 0 : static_cast<std::size_t>(count);
        _Points = ZAMPrtPointList({points, copied});
    }
    /// Gives the element a new list of `count` points, for the caller to fill before anybody reads or copies it.
    std::span<ZAMMathPoint2D> NewPoints(std::size_t count) { return _Points.Renew(count); }
    [[nodiscard]] std::span<const ZAMMathPoint2D> GetPoints() const { return _Points.Get(); }

    [[nodiscard]] std::size_t GetCost() const override { return 1 + GetPoints().size() / ZAMLimits::kPointsForOne; }

private:
    ZAMPrtPointList _Points;
};
