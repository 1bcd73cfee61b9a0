// SPDX-License-Identifier: MIT
#include "tools/common/PageSize.h"

#include "framework/print/ZAMPrintPlacement.h"
#include "tools/common/PageSizeProbe.h"
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVGGetDocumentSize.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <new>

namespace {

constexpr double kPointsPerInch = 72.0;

bool IsLength(double value) {
    return std::isfinite(value) && value > 0.0;
}

ZAMMathVector2D FindNaturalSize(const ZAMLightXmlElement& drawing, ZAMPrintSVGInterpreter& interpreter) {
    double width = 0.0;
    double height = 0.0;
    if (ZAMPrintSVGGetDocumentSize(drawing, width, height) == 1 && IsLength(width) && IsLength(height)) {
        return {width * kZAMPrintPointsPerUnit, height * kZAMPrintPointsPerUnit};
    }
    PageSizeProbe probe;
    interpreter.Decode(&probe, ZAMPrintParameters());
    if (!probe.GetPageSize()) {
        throw std::bad_alloc();
    }
    return *probe.GetPageSize();
}

// The side that keeps the aspect. A drawing may be 1e300 times as wide as it is high: the result stays a length.
double KeepAspect(double side, double naturalSide, double naturalResult) {
    return std::clamp(side * (naturalResult / naturalSide), 0.01, 1e9);
}

} // namespace

ZAMMathVector2D FindPageSize(const ZAMLightXmlElement& drawing, ZAMPrintSVGInterpreter& interpreter,
                             const Options& options) {
    if (options.paper) {
        const ZAMMathVector2D paper = *options.paper;
        return options.isLandscape ? ZAMMathVector2D{std::max(paper.x, paper.y), std::min(paper.x, paper.y)} : paper;
    }
    const double unit =
        options.GetFormat() == OutputFormat::Png ? kPointsPerInch / options.resolution : kZAMPrintPointsPerUnit;
    if (options.width && options.height) {
        return {*options.width * unit, *options.height * unit};
    }
    const ZAMMathVector2D natural = FindNaturalSize(drawing, interpreter);
    if (options.width) {
        const double width = *options.width * unit;
        return {width, KeepAspect(width, natural.x, natural.y)};
    }
    if (options.height) {
        const double height = *options.height * unit;
        return {KeepAspect(height, natural.y, natural.x), height};
    }
    constexpr double kLargest = std::numeric_limits<double>::max();
    return {std::min(natural.x * options.scale, kLargest), std::min(natural.y * options.scale, kLargest)};
}
