// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathPoint2D.h"
#include "framework/model/ZAMPrtPolygonElt.h"
#include "framework/model/ZAMPrtPolylineElt.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGCoordinateLists.h"

#include <string_view>
#include <vector>

/// Reads the points of a polyline or polygon (SVG 1.1, 9.7.1). A minus sign separates nothing: "10-20" reads as 10.
class ZAMPrintSVGPointsParser : public ZAMPrintSVGCoordinateLists<ZAMPrintSVGMinus::IsPart> {
public:
    /// Gives the element its vertices; fewer than two values give none. 1, or -1 for a null element or an empty text.
    int ParsePointsString(ZAMPrtPolylineElt* polyline, std::string_view text) const { return Parse(polyline, text); }
    int ParsePointsString(ZAMPrtPolygonElt* polygon, std::string_view text) const { return Parse(polygon, text); }

private:
    template <class Element> int Parse(Element* element, std::string_view text) const {
        if (element == nullptr || text.empty()) {
            return -1;
        }
        const std::vector<ZAMMathPoint2D> points = ReadPoints(text);
        if (!points.empty()) {
            element->SetPoints(points.data(), static_cast<int>(points.size()));
        }
        return 1;
    }

    [[nodiscard]] std::vector<ZAMMathPoint2D> ReadPoints(std::string_view text) const;
};
