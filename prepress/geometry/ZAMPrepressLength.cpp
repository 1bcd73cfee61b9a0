// SPDX-License-Identifier: MIT
#include "prepress/geometry/ZAMPrepressLength.h"

#include "framework/base/ZAMTextCompare.h"
#include "prepress/geometry/ZAMPrepressScanner.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kInch = 90.0;

struct Unit {
    std::string_view name;
    double (*size)(const ZAMPrepressLengthBase& base); ///< in user units
};

constexpr Unit kUnits[] = {
    {"", [](const ZAMPrepressLengthBase&) { return 1.0; }},
    {"px", [](const ZAMPrepressLengthBase&) { return 1.0; }},
    {"pt", [](const ZAMPrepressLengthBase&) { return kInch / 72.0; }},
    {"pc", [](const ZAMPrepressLengthBase&) { return kInch / 6.0; }},
    {"in", [](const ZAMPrepressLengthBase&) { return kInch; }},
    {"cm", [](const ZAMPrepressLengthBase&) { return kInch / 2.54; }},
    {"mm", [](const ZAMPrepressLengthBase&) { return kInch / 25.4; }},
    {"q", [](const ZAMPrepressLengthBase&) { return kInch / 101.6; }},
    {"%", [](const ZAMPrepressLengthBase& base) { return base.whole / 100.0; }},
    {"em", [](const ZAMPrepressLengthBase& base) { return base.fontSize; }},
    {"rem", [](const ZAMPrepressLengthBase&) { return ZAMPrepressLengthBase().fontSize; }},
    {"ex", [](const ZAMPrepressLengthBase& base) { return base.fontSize / 2.0; }},
    {"ch", [](const ZAMPrepressLengthBase& base) { return base.fontSize / 2.0; }},
};

std::string_view Trimmed(std::string_view text) {
    while (!text.empty() && ZAMPrepressScanner::IsSpace(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && ZAMPrepressScanner::IsSpace(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

} // namespace

std::optional<double> ZAMPrepressReadLength(std::string_view text, const ZAMPrepressLengthBase& base) {
    ZAMPrepressScanner scanner(Trimmed(text));
    const std::string_view number = scanner.TakeNumber();
    if (number.empty()) {
        return std::nullopt;
    }
    const auto* const unit = std::ranges::find_if(kUnits, [&](const Unit& each) {
        return each.name.size() == scanner.GetRest().size() && ZAMTextMatches(scanner.GetRest(), each.name);
    });
    const double length = unit == std::end(kUnits) ? NAN : ZAMPrepressNumber(number) * unit->size(base);
    return std::isfinite(length) ? std::optional(length) : std::nullopt;
}

std::optional<double> ZAMPrepressReadNumber(std::string_view text) {
    ZAMPrepressScanner scanner(Trimmed(text));
    const std::string_view number = scanner.TakeNumber();
    if (number.empty() || !scanner.AtEnd()) {
        return std::nullopt;
    }
    const double value = ZAMPrepressNumber(number);
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

double ZAMPrepressNumberOr(const ZAMPrepressElement& element, std::string_view attribute, double otherwise) {
    return ZAMPrepressReadNumber(element.Get(attribute)).value_or(otherwise);
}

std::optional<std::array<double, 4>> ZAMPrepressReadViewBox(std::string_view text) {
    ZAMPrepressScanner scanner(Trimmed(text));
    std::array<double, 4> box{};
    for (double& value : box) {
        if (&value != box.data()) {
            scanner.SkipSeparator();
        }
        const std::string_view number = scanner.TakeNumber();
        value = ZAMPrepressNumber(number);
        if (number.empty() || !std::isfinite(value)) {
            return std::nullopt;
        }
    }
    return scanner.AtEnd() && box[2] >= 0.0 && box[3] >= 0.0 ? std::optional(box) : std::nullopt;
}

double ZAMPrepressViewportSize::GetDiagonal() const {
    return std::sqrt((width * width + height * height) / 2.0);
}

ZAMPrepressViewportSize ZAMPrepressViewportSize::OfRoot(const ZAMPrepressElement& root) {
    if (const auto box = ZAMPrepressReadViewBox(root.Get("viewBox"))) {
        return {(*box)[2], (*box)[3]};
    }
    return {ZAMPrepressReadLength(root.Get("width")).value_or(0.0),
            ZAMPrepressReadLength(root.Get("height")).value_or(0.0)};
}
