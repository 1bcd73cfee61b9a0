// SPDX-License-Identifier: MIT
#pragma once

#include "framework/model/ZAMPrtAllElements.h"
#include "framework/model/ZAMPrtTypeList.h"

#include <cmath>
#include <cstdio>
#include <initializer_list>
#include <span>
#include <string>

/// Numbers as text, separated by commas; 17 digits are exact, with fewer what is nearly 0 is 0.
inline std::string NumberText(std::initializer_list<double> values, int digits = 6) {
    std::string text;
    for (const double value : values) {
        char buffer[40];
        const bool roundsToZero = digits < 17 && std::abs(value) < 1e-9;
        std::snprintf(buffer, sizeof buffer, "%.*g", digits, roundsToZero ? 0.0 : value);
        text += text.empty() ? buffer : std::string(",") + buffer;
    }
    return text;
}

/// What an element holds, in short: "L" a polyline, "C" and "Q" curves, each with its points; "A" an arc with centre,
/// radii, and rotation, start and sweep; a figure in braces, a region in brackets.
inline std::string PieceText(const ZAMPrtGraphicPrimitiveElt& container, int digits = 6) {
    std::string text;
    const auto add = [&text](const std::string& piece) { text += text.empty() ? piece : " " + piece; };
    const auto points = [digits](const char* letter, std::span<const ZAMMathPoint2D> list) {
        std::string result = letter;
        for (const ZAMMathPoint2D& point : list) {
            result += ' ' + NumberText({point.x, point.y}, digits);
        }
        return result;
    };
    for (const auto& child : container.GetChildren()) {
        const ZAMPrtGraphicPrimitiveElt* const element = child.Get();
        if (const auto* line = ZAMPrtCast<ZAMPrtPolylineElt>(element)) {
            add(points("L", line->GetPoints()));
        } else if (const auto* cubic = ZAMPrtCast<ZAMPrtPolyCubicBezierElt>(element)) {
            add(points("C", cubic->GetPoints()));
        } else if (const auto* quadratic = ZAMPrtCast<ZAMPrtPolyQuadraticBezierElt>(element)) {
            add(points("Q", quadratic->GetPoints()));
        } else if (const auto* arc = ZAMPrtCast<ZAMPrtEllipticalArcElt>(element)) {
            const ZAMMathEllipticalArc& a = arc->GetArc();
            add("A " + NumberText({a.center.x, a.center.y}, digits) + ' ' + NumberText({a.xRadius, a.yRadius}, digits) +
                ' ' + NumberText({a.rotation, a.startAngle, a.sweepAngle}, digits));
        } else if (ZAMPrtCast<ZAMPrtClosedFigureElt>(element) != nullptr) {
            add("{" + PieceText(*element, digits) + "}");
        } else {
            add("[" + PieceText(*element, digits) + "]");
        }
    }
    return text;
}
