// SPDX-License-Identifier: MIT
#include "prepress/geometry/ZAMPrepressViewport.h"

#include "prepress/geometry/ZAMPrepressScanner.h"

#include <algorithm>
#include <iterator>

namespace {

struct Alignment {
    std::string_view name;
    double x;
    double y;
};

constexpr Alignment kAlignments[] = {
    {"xMinYMin", 0.0, 0.0}, {"xMidYMin", 0.5, 0.0}, {"xMaxYMin", 1.0, 0.0},
    {"xMinYMid", 0.0, 0.5}, {"xMidYMid", 0.5, 0.5}, {"xMaxYMid", 1.0, 0.5},
    {"xMinYMax", 0.0, 1.0}, {"xMidYMax", 0.5, 1.0}, {"xMaxYMax", 1.0, 1.0},
};

std::string_view TakeWord(ZAMPrepressScanner& scanner) {
    scanner.SkipSpace();
    return scanner.TakeWord();
}

} // namespace

ZAMPrepressAspect ZAMPrepressAspect::Parse(std::string_view text) {
    ZAMPrepressScanner scanner(text);
    std::string_view word = TakeWord(scanner);
    if (word == "defer") { // it only matters for pictures that are documents: they have no say here
        word = TakeWord(scanner);
    }
    if (word == "none") {
        return {Fit::Stretch, 0.0, 0.0};
    }
    const auto* const found = std::ranges::find(kAlignments, word, &Alignment::name);
    if (found == std::end(kAlignments)) {
        return {};
    }
    return {TakeWord(scanner) == "slice" ? Fit::Slice : Fit::Meet, found->x, found->y};
}

ZAMMathAffine2D ZAMPrepressAspect::Map(const ZAMMathBox2D& content, const ZAMMathBox2D& viewport) const {
    double xScale = viewport.Width() / content.Width();
    double yScale = viewport.Height() / content.Height();
    if (fit != Fit::Stretch) {
        xScale = yScale = fit == Fit::Meet ? std::min(xScale, yScale) : std::max(xScale, yScale);
    }
    const double xRoom = viewport.Width() - content.Width() * xScale;
    const double yRoom = viewport.Height() - content.Height() * yScale;
    return {xScale,
            0.0,
            0.0,
            yScale,
            viewport.xMin + xRoom * xAlign - content.xMin * xScale,
            viewport.yMin + yRoom * yAlign - content.yMin * yScale};
}

ZAMMathBox2D ZAMPrepressUnmap(const ZAMMathAffine2D& map, const ZAMMathBox2D& box) {
    ZAMMathBox2D result;
    result.Add({(box.xMin - map.e) / map.a, (box.yMin - map.f) / map.d});
    result.Add({(box.xMax - map.e) / map.a, (box.yMax - map.f) / map.d});
    return result;
}
