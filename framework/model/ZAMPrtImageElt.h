// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/mathematics/ZAMMath2x2Matrix.h"
#include "framework/mathematics/ZAMMathPoint2D.h"
#include "framework/mathematics/ZAMMathVector2D.h"
#include "framework/model/ZAMPrtColourTable.h"
#include "framework/model/ZAMPrtContainerOf.h"
#include "framework/model/ZAMPrtEltOf.h"

/// The top of one drawing: a page. It shows the rectangle from its origin (lower left) with its size, mapped by its
/// matrix about the coordinate origin.
class ZAM_EXPORT ZAMPrtImageElt : public ZAMPrtEltOf<ZAMPrtImageElt, ZAMPrtContainerOf<ZAMPrtGraphicPrimitiveElt>> {
public:
    static constexpr std::string_view kClassName = "ZAMPrtImageElt";

    [[nodiscard]] const ZAMMathPoint2D& GetOrigin() const { return _Origin; }
    void SetOrigin(const ZAMMathPoint2D& origin) { _Origin = origin; }
    [[nodiscard]] const ZAMMathVector2D& GetSize() const { return _Size; }
    void SetSize(double width, double height) { _Size = {width, height}; }
    [[nodiscard]] const ZAMMath2x2Matrix& GetMatrix() const { return _Matrix; }
    void SetMatrix(const ZAMMath2x2Matrix& matrix) { _Matrix = matrix; }

    /// 1: user units, 90 to the inch; the only unit there is.
    void SetSizeUnit(const int& unit) { _SizeUnit = unit; }
    [[nodiscard]] int GetSizeUnit() const { return _SizeUnit; }

    /// Null when the image has no table. A duplicate shares the table of its source.
    [[nodiscard]] ZAMPrtColourTable* GetColourTable() const { return _ColourTable.Get(); }
    /// Takes a reference of its own.
    void SetColourTable(ZAMPrtColourTable* table) { _ColourTable = ZAMRef<ZAMPrtColourTable>::Share(table); }

private:
    ZAMMathPoint2D _Origin;
    ZAMMathVector2D _Size;
    ZAMMath2x2Matrix _Matrix;
    ZAMRef<ZAMPrtColourTable> _ColourTable;
    int _SizeUnit = 1;
};
