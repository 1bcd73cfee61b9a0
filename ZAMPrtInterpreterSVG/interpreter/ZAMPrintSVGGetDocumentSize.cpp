// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVGGetDocumentSize.h"

#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGLengthReader.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGViewBoxParser.h"

#include <cmath>

namespace {

bool IsPositive(double value) {
    return std::isfinite(value) && value > 0.0;
}

// 0 for a length that is missing, a percentage or not positive.
double AbsoluteLength(std::string_view text) {
    double length = 0.0;
    if (text.find('%') != std::string_view::npos || ZAMPrintSVGLengthReader().GetLength(text, length) != 1) {
        return 0.0;
    }
    return IsPositive(length) ? length : 0.0;
}

// Width by height of the viewBox, or 0.
double AspectOf(std::string_view viewBox) {
    double minX = 0.0;
    double minY = 0.0;
    double width = 0.0;
    double height = 0.0;
    ZAMPrintSVGViewBoxParser::ParseViewBoxString(viewBox, minX, minY, width, height);
    return IsPositive(width) && IsPositive(height) ? width / height : 0.0;
}

} // namespace

int ZAMPrintSVGGetDocumentSize(const ZAMLightXmlElementItf& root, double& width, double& height) {
    double ownWidth = AbsoluteLength(root.GetAttribute("width"));
    double ownHeight = AbsoluteLength(root.GetAttribute("height"));
    if (ownWidth == 0.0 || ownHeight == 0.0) {
        const double aspect = AspectOf(root.GetAttribute("viewBox"));
        ownWidth = ownWidth > 0.0 ? ownWidth : ownHeight * aspect;
        ownHeight = ownHeight > 0.0 || aspect == 0.0 ? ownHeight : ownWidth / aspect;
    }
    if (!IsPositive(ownWidth) || !IsPositive(ownHeight)) {
        return -1;
    }
    width = ownWidth;
    height = ownHeight;
    return 1;
}
