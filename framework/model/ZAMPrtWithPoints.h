// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/mathematics/ZAMMathPoint2D.h"

#include <cstddef>
#include <memory>
#include <span>
#include <vector>

/// Gives an element class a list of points, on top of the attributes of `Base`. Copies of the element share the list.
template <class Base> class ZAM_EXPORT ZAMPrtWithPoints : public Base {
public:
    /// Copies `count` points; fewer than one leave the element without points.
    void SetPoints(const ZAMMathPoint2D* points, int count) {
        if (points == nullptr || count < 1) {
            _Points.reset();
            return;
        }
        _Points = std::make_shared<const std::vector<ZAMMathPoint2D>>(points, points + count);
    }
    [[nodiscard]] std::span<const ZAMMathPoint2D> GetPoints() const {
        return _Points ? std::span<const ZAMMathPoint2D>(*_Points) : std::span<const ZAMMathPoint2D>();
    }

    [[nodiscard]] std::size_t GetCost() const override {
        constexpr std::size_t kPointsForOne = 32;
        return 1 + GetPoints().size() / kPointsForOne;
    }

private:
    std::shared_ptr<const std::vector<ZAMMathPoint2D>> _Points;
};
