// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathPoint2D.h"
#include "framework/model/ZAMPrtPolygonElt.h"
#include "framework/model/ZAMPrtPolylineElt.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGCoordinateLists.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGMarkers.h"

#include <cstddef>
#include <string_view>
#include <utility>

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
        if (list.GetCount() > 1) {
            std::size_t value = 0;
            for (ZAMMathPoint2D& point : element->NewPoints(list.GetCount() / 2)) {
                point = {list[value + 1], list[value + 2]};
                value += 2;
            }
        }
        _Markers.AddMarkers(list, _FlipY, _ImageHeight, markerParent);
        return 1;
    }

    ZAMPrintSVGMarkers _Markers;
};
