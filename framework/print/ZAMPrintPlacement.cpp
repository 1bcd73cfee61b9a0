// SPDX-License-Identifier: MIT
#include "framework/print/ZAMPrintPlacement.h"

#include "framework/print/ZAMPrintModelBoundingBoxComputer.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double kSmallestSide = 0.01;

bool IsLength(double value) {
    return std::isfinite(value) && value > 0.0;
}

bool HasArea(const ZAMMathBox2D& box) {
    return IsLength(box.Width()) && IsLength(box.Height());
}

ZAMMathBox2D AreaOf(const ZAMPrtImageElt& image) {
    const ZAMMathPoint2D& origin = image.GetOrigin();
    const ZAMMathVector2D& size = image.GetSize();
    const ZAMMathBox2D own{origin.x, origin.y, origin.x + size.x, origin.y + size.y};
    if (HasArea(own)) {
        return own;
    }
    const ZAMMathBox2D content = ZAMPrintModelBoundingBoxComputer::BoxOf(image, {});
    return HasArea(content) ? content : ZAMMathBox2D{0.0, 0.0, 1.0, 1.0};
}

struct Paper {
    double width;
    double height;
    double scale; // points a unit
};

Paper PaperFor(double width, double height, const ZAMPrintParameters& parameters) {
    const double natural = kZAMPrintPointsPerUnit * (IsLength(parameters.scale) ? parameters.scale : 1.0);
    if (!IsLength(parameters.pageWidth) || !IsLength(parameters.pageHeight)) {
        constexpr double kLargest = std::numeric_limits<double>::max();
        return {std::min(width * natural, kLargest), std::min(height * natural, kLargest), natural};
    }
    const double margin = IsLength(parameters.margin) ? parameters.margin : 0.0;
    const double room = std::max(
        std::min((parameters.pageWidth - 2 * margin) / width, (parameters.pageHeight - 2 * margin) / height), 0.0);
    switch (parameters.fit) {
    case ZAMPrintFit::None:
        return {parameters.pageWidth, parameters.pageHeight, natural};
    case ZAMPrintFit::Shrink:
        return {parameters.pageWidth, parameters.pageHeight, std::min(natural, room)};
    case ZAMPrintFit::Page:
        break;
    }
    return {parameters.pageWidth, parameters.pageHeight, room * natural / kZAMPrintPointsPerUnit};
}

void Reduce(Paper& paper, double largestSide) {
    const double factor = std::min(1.0, largestSide / std::max(paper.width, paper.height));
    paper.width = std::clamp(paper.width * factor, kSmallestSide, largestSide);
    paper.height = std::clamp(paper.height * factor, kSmallestSide, largestSide);
    paper.scale *= factor;
}

} // namespace

ZAMPrintPlacement ZAMPrintPlacement::Of(const ZAMPrtImageElt& image, const ZAMPrintParameters& parameters,
                                        double largestSide) {
    ZAMPrintPlacement placement;
    placement.area = AreaOf(image);
    const ZAMMath2x2Matrix& own = image.GetMatrix();
    ZAMMathAffine2D matrix = own.IsInvertible() ? ZAMMathAffine2D::FromMatrix(own) : ZAMMathAffine2D();
    ZAMMathBox2D shown = matrix.Apply(placement.area);
    if (!HasArea(shown)) { // flattened or carried beyond all numbers
        matrix = ZAMMathAffine2D();
        shown = placement.area;
    }

    Paper paper = PaperFor(shown.Width(), shown.Height(), parameters);
    Reduce(paper, largestSide);
    placement.pageWidth = paper.width;
    placement.pageHeight = paper.height;

    const double left = (paper.width - shown.Width() * paper.scale) / 2 - shown.xMin * paper.scale;
    const double top = (paper.height - shown.Height() * paper.scale) / 2 + shown.yMax * paper.scale;
    placement.toPage = ZAMMathAffine2D{paper.scale, 0.0, 0.0, -paper.scale, left, top} * matrix;
    return placement;
}
