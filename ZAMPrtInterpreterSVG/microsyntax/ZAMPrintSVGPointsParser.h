// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathPoint2D.h"
#include "framework/model/ZAMPrtPolygonElt.h"
#include "framework/model/ZAMPrtPolylineElt.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGCoordinateLists.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGMarkers.h"

#include <string_view>
#include <utility>
#include <vector>

/// Reads the points of a polyline or polygon (SVG 1.1, 9.7.1). A minus sign separates nothing: "10-20" reads as 10.
class ZAMPrintSVGPointsParser : public ZAMPrintSVGCoordinateLists<ZAMPrintSVGMinus::IsPart> {
public:
    /// Takes the markers that the vertices get; each is held until the next call. Always 1.
    int SetMarkerAttributes(ZAMPrintSVGMarkers markers) {
        _Markers = std::move(markers);
        return 1;
    }

    /// Gives the element its vertices, and its markers to `markerParent`; fewer than two values give no vertices. 1, or
    /// -1 for a null element or an empty text.
    int ParsePointsString(ZAMPrtPolylineElt* polyline, std::string_view text,
                          ZAMPrtGraphicPrimitiveElt* markerParent) const {
        return Parse(polyline, text, markerParent);
    }
    int ParsePointsString(ZAMPrtPolygonElt* polygon, std::string_view text,
                          ZAMPrtGraphicPrimitiveElt* markerParent) const {
        return Parse(polygon, text, markerParent);
    }

private:
    template <class Element>
    int Parse(Element* element, std::string_view text, ZAMPrtGraphicPrimitiveElt* markerParent) const {
        if (element == nullptr || text.empty()) {
            return -1;
        }
        ZAMRawColldouble list;
        GetPointListFromPointListString(text, list);
        const std::vector<ZAMMathPoint2D> points = ToPoints(list);
        if (!points.empty()) {
            element->SetPoints(points.data(), static_cast<int>(points.size()));
        }
        _Markers.AddMarkers(list, _FlipY, _ImageHeight, markerParent);
        return 1;
    }

    [[nodiscard]] static std::vector<ZAMMathPoint2D> ToPoints(const ZAMRawColldouble& list);

    ZAMPrintSVGMarkers _Markers;
};
