// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/mathematics/ZAMMathPoint2D.h"
#include "framework/mathematics/ZAMMathVector2D.h"

/// Gives an element class an origin and a size, on top of the attributes of `Base`.
template <class Base> class ZAM_EXPORT ZAMPrtWithFrame : public Base {
public:
    [[nodiscard]] const ZAMMathPoint2D& GetOrigin() const { return _Origin; }
    void SetOrigin(const ZAMMathPoint2D& origin) { _Origin = origin; }
    [[nodiscard]] const ZAMMathVector2D& GetSize() const { return _Size; }
    void SetSize(double width, double height) { _Size = {width, height}; }

private:
    ZAMMathPoint2D _Origin;
    ZAMMathVector2D _Size;
};
