// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/mathematics/ZAMMathAffine2D.h"
#include "framework/mathematics/ZAMMathBox2D.h"
#include "framework/model/ZAMPrtGraphicPrimitiveElt.h"

/// Measures elements: the exact box of their geometry, curve extrema included, stroke widths not. Every element counts,
/// whatever its draw style and a bitmap whatever its pixels; a symbol with a size is the area that it shows. A pattern
/// among the content counts nothing. Points that are not finite are left out.
class ZAM_EXPORT ZAMPrintModelBoundingBoxComputer {
public:
    /// The box of the element's content in the element's own coordinates: the transforms of its descendants count, its
    /// own does not. Nothing drawn leaves the four values as they were. 1 when they were set, else 0.
    static int Compute(const ZAMPrtGraphicPrimitiveElt* element, double& xMin, double& xMax, double& yMin,
                       double& yMax);

    /// The box of the element's content as `map` carries it over; empty when it holds nothing.
    [[nodiscard]] static ZAMMathBox2D BoxOf(const ZAMPrtGraphicPrimitiveElt& element, const ZAMMathAffine2D& map);
};
