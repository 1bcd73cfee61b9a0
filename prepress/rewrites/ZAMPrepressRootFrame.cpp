// SPDX-License-Identifier: MIT
#include "prepress/rewrites/ZAMPrepressRootFrame.h"

#include "prepress/geometry/ZAMPrepressViewport.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kTolerance = 1e-6; // of the frame's sides

// The page has no size that a percentage could count against.
std::optional<double> ReadSide(std::string_view text) {
    const auto length = text.ends_with('%') ? std::nullopt : ZAMPrepressReadLength(text);
    return length && *length > 0.0 ? length : std::nullopt;
}

// As the interpreter reads them: a percentage is the same as nothing.
bool IsPlainSide(std::string_view text) {
    constexpr std::string_view kUnits[] = {"%", "px", "pt", "pc", "cm", "mm", "in"};
    return text.empty() || ZAMPrepressReadNumber(text) ||
           std::ranges::any_of(kUnits, [&](std::string_view unit) { return text.ends_with(unit); });
}

bool IsPlainViewBox(std::string_view text) {
    return text.find_first_not_of("0123456789.-+eE ") == std::string_view::npos;
}

bool IsNear(const ZAMMathBox2D& left, const ZAMMathBox2D& right) {
    const double tolerance = kTolerance * std::max(left.Width(), left.Height());
    return std::abs(left.xMin - right.xMin) <= tolerance && std::abs(left.yMin - right.yMin) <= tolerance &&
           std::abs(left.xMax - right.xMax) <= tolerance && std::abs(left.yMax - right.yMax) <= tolerance;
}

} // namespace

ZAMPrepressRootFrame ZAMPrepressRootFrame::Of(const Texts& texts) {
    ZAMPrepressRootFrame frame;
    frame.width = ReadSide(texts.width);
    frame.height = ReadSide(texts.height);
    frame.isAsWritten = IsPlainSide(texts.width) && IsPlainSide(texts.height);
    const auto numbers = ZAMPrepressReadViewBox(texts.viewBox);
    const ZAMMathBox2D viewBox = numbers ? ZAMPrepressToBox(*numbers) : ZAMMathBox2D();
    if (!ZAMPrepressHasArea(viewBox)) {
        frame.isAsWritten = frame.isAsWritten && texts.viewBox.empty();
        frame.percentages = {frame.width.value_or(0.0), frame.height.value_or(0.0)};
        return frame;
    }
    frame.isAsWritten =
        frame.isAsWritten && IsPlainViewBox(texts.viewBox) && frame.width.has_value() == frame.height.has_value();
    frame.percentages = {viewBox.Width(), viewBox.Height()};

    // A side that is not given keeps the aspect of the viewBox.
    if (!frame.height) {
        frame.height = frame.width ? *frame.width * viewBox.Height() / viewBox.Width() : viewBox.Height();
    }
    if (!frame.width) {
        frame.width = *frame.height * viewBox.Width() / viewBox.Height();
    }
    const ZAMMathBox2D page{0.0, 0.0, *frame.width, *frame.height};
    const ZAMMathAffine2D toPage = ZAMPrepressAspect::Parse(texts.aspect).Map(viewBox, page);
    if (std::abs(toPage.a - toPage.d) > kTolerance * toPage.a) {
        frame.viewBox = page;
        frame.content = toPage;
        frame.isAsWritten = false;
    } else {
        frame.viewBox = ZAMPrepressUnmap(toPage, page);
        frame.isAsWritten = frame.isAsWritten && IsNear(*frame.viewBox, viewBox);
    }
    return frame;
}
