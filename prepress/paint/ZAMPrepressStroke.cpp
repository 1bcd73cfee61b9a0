// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressStroke.h"

#include "prepress/geometry/ZAMPrepressLength.h"
#include "prepress/geometry/ZAMPrepressPathBuilder.h"
#include "prepress/paint/ZAMPrepressStroker.h"

#include <algorithm>
#include <numeric>

namespace {

ZAMPrepressStroke::Cap ReadCap(std::string_view text) {
    if (text == "round") {
        return ZAMPrepressStroke::Cap::Round;
    }
    return text == "square" ? ZAMPrepressStroke::Cap::Square : ZAMPrepressStroke::Cap::Butt;
}

ZAMPrepressStroke::Join ReadJoin(std::string_view text) {
    if (text == "round") {
        return ZAMPrepressStroke::Join::Round;
    }
    return text == "bevel" ? ZAMPrepressStroke::Join::Bevel : ZAMPrepressStroke::Join::Miter;
}

// Empty when the list is in error, or all of it is 0.
std::vector<double> ReadDashes(std::string_view text) {
    std::vector<double> lengths;
    ZAMPrepressScanner scanner(text);
    for (scanner.SkipSpace(); !scanner.AtEnd(); scanner.SkipSeparator()) {
        const std::string_view number = scanner.TakeNumber();
        lengths.push_back(ZAMPrepressNumber(number));
        if (number.empty() || !(lengths.back() >= 0.0)) {
            return {};
        }
    }
    const double sum = std::accumulate(lengths.begin(), lengths.end(), 0.0);
    return sum > 0.0 && std::isfinite(sum) ? lengths : std::vector<double>();
}

} // namespace

ZAMPrepressStroke ZAMPrepressStroke::Of(const ZAMPrepressElement& shape) {
    const ZAMPrepressStroke initial;
    return {ZAMPrepressNumberOr(shape, "stroke-width", initial.width), ReadCap(shape.Get("stroke-linecap")),
            ReadJoin(shape.Get("stroke-linejoin")), ZAMPrepressNumberOr(shape, "stroke-miterlimit", initial.miterLimit),
            ReadDashes(shape.Get("stroke-dasharray"))};
}

std::optional<ZAMPrepressPath> ZAMPrepressStroke::GetOutline(const ZAMPrepressPath& path, double tolerance,
                                                             std::size_t mostVertices) const {
    const ZAMPrepressFlatness flatness{tolerance, width / 2.0, mostVertices};
    auto lines = ZAMPrepressFlatten(path, flatness);
    if (lines && !dashes.empty()) {
        lines = ZAMPrepressDash(*lines, dashes, flatness);
    }
    if (!lines) {
        return std::nullopt;
    }
    ZAMPrepressPath outline;
    ZAMPrepressStroker stroker(*this, tolerance, outline);
    const bool isDone =
        std::ranges::all_of(*lines, [&](const ZAMPrepressFlatLine& line) { return stroker.Add(line, mostVertices); });
    return isDone ? std::optional(std::move(outline)) : std::nullopt;
}
