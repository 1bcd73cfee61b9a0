// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGPointsParser.h"

std::vector<ZAMMathPoint2D> ZAMPrintSVGPointsParser::ToPoints(const ZAMRawColldouble& list) {
    std::vector<ZAMMathPoint2D> points;
    points.reserve(list.GetCount() / 2);
    for (std::size_t i = 1; i < list.GetCount(); i += 2) {
        points.push_back({list[i], list[i + 1]});
    }
    return points;
}
