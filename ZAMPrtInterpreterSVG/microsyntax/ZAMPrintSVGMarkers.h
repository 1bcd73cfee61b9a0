// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMRawColldouble.h"
#include "framework/base/ZAMRef.h"
#include "framework/mathematics/ZAMMathPoint2D.h"
#include "framework/model/ZAMPrtGraphicPrimitiveElt.h"

/// The markers of one path, polyline or polygon (SVG 1.1, 11.6). They are moved to their vertices and neither turned
/// nor scaled.
struct ZAMPrintSVGMarkers {
    ZAMRef<ZAMPrtGraphicPrimitiveElt> start; ///< each null for none
    ZAMRef<ZAMPrtGraphicPrimitiveElt> mid;
    ZAMRef<ZAMPrtGraphicPrimitiveElt> end;

    [[nodiscard]] bool IsEmpty() const { return !start && !mid && !end; }

    /// Adds an instance, a group that holds the marker, to the target for each vertex of the list: the start marker at
    /// the first, the mid marker at those in between, the end marker at the last. A target that takes no markers gets
    /// none. Always 0.
    int AddMarkers(const ZAMRawColldouble& vertices, bool flipY, double imageHeight,
                   ZAMPrtGraphicPrimitiveElt* target) const;

    /// Moves a marker from the document's origin to the vertex.
    static void AddVertex(ZAMPrtTransformAttributes& transform, const ZAMMathPoint2D& vertex, bool flipY,
                          double imageHeight);
};
