// SPDX-License-Identifier: MIT
#include "tools/zamprint/PaperSize.h"

#include "framework/base/ZAMNumberReading.h"
#include "framework/base/ZAMTextCompare.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr double kPointsPerInch = 72.0;
constexpr double kPointsPerMillimetre = kPointsPerInch / 25.4;

struct Unit {
    std::string_view name;
    double points;
};

constexpr Unit kUnits[] = {
    {"mm", kPointsPerMillimetre},
    {"cm", 10.0 * kPointsPerMillimetre},
    {"in", kPointsPerInch},
    {"pt", 1.0},
};

struct Paper {
    std::string_view name;
    double width;
    double height;
    double unit; ///< points in one
};

constexpr Paper kPapers[] = {
    {"A0", 841, 1189, kPointsPerMillimetre}, {"A1", 594, 841, kPointsPerMillimetre},
    {"A2", 420, 594, kPointsPerMillimetre},  {"A3", 297, 420, kPointsPerMillimetre},
    {"A4", 210, 297, kPointsPerMillimetre},  {"A5", 148, 210, kPointsPerMillimetre},
    {"A6", 105, 148, kPointsPerMillimetre},  {"Letter", 8.5, 11, kPointsPerInch},
    {"Legal", 8.5, 14, kPointsPerInch},      {"Tabloid", 11, 17, kPointsPerInch},
};

// The unit at the end of the text; a unit without a name for none.
Unit FindUnit(std::string_view text) {
    const std::string_view end = text.substr(text.size() - std::min<std::size_t>(text.size(), 2));
    const auto* const found =
        std::ranges::find_if(kUnits, [&](const Unit& unit) { return ZAMTextMatches(unit.name, end); });
    return found != std::end(kUnits) ? *found : Unit{"", 1.0};
}

bool IsSide(double points) {
    constexpr double kSmallest = 1.0;
    constexpr double kLargest = 14400.0; // of a page in PDF
    return points >= kSmallest && points <= kLargest;
}

} // namespace

std::optional<double> ReadPaperLength(std::string_view text) {
    const Unit unit = FindUnit(text);
    double number = 0.0;
    // Written so that "nan" is none.
    if (!ZAMReadPlainDouble(text.substr(0, text.size() - unit.name.size()), number) || !(number >= 0.0) ||
        !std::isfinite(number)) {
        return std::nullopt;
    }
    return number * unit.points;
}

std::optional<ZAMMathVector2D> FindPaperSize(std::string_view text) {
    const auto* const paper =
        std::ranges::find_if(kPapers, [&](const Paper& each) { return ZAMTextMatches(each.name, text); });
    if (paper != std::end(kPapers)) {
        return ZAMMathVector2D{paper->width * paper->unit, paper->height * paper->unit};
    }
    const std::size_t cross = text.find('x');
    if (cross == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view second = text.substr(cross + 1);
    const std::string_view first = text.substr(0, cross);
    const Unit shared = FindUnit(first).name.empty() ? FindUnit(second) : Unit{"", 1.0};
    const auto width = ReadPaperLength(first);
    const auto height = ReadPaperLength(second);
    if (!width || !height || !IsSide(*width * shared.points) || !IsSide(*height)) {
        return std::nullopt;
    }
    return ZAMMathVector2D{*width * shared.points, *height};
}
