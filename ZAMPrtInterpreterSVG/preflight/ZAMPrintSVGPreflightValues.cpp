// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightValues.h"

#include "framework/base/ZAMNumberReading.h"
#include "framework/base/ZAMRef.h"
#include "framework/base/ZAMTextCompare.h"
#include "framework/model/ZAMPrtColourTable.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGTokenCursor.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGColorParser.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGNumberText.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGVocabulary.h"

#include <algorithm>
#include <optional>

namespace {

using Fault = ZAMPrintSVGFault;
using Trouble = std::optional<Fault>;

Trouble CheckUnit(std::string_view value, std::string_view units) {
    double number = 0.0;
    if (ZAMReadDouble(value, number) != 1) {
        return Fault::ValueNotUnderstood;
    }
    const std::string_view unit = value.substr(value.find_last_of("0123456789.") + 1);
    return unit.empty() || ZAMPrintSVGVocabulary::Holds(units, '|', unit) ? Trouble() : Fault::UnknownUnit;
}

Trouble CheckLengthValue(std::string_view value) {
    return CheckUnit(value, "px|pt|pc|cm|mm|in|%");
}

// References are looked at elsewhere.
Trouble CheckColour(std::string_view value) {
    if (ZAMPrintSVGVocabulary::Holds("none|currentColor", '|', value) || value.find("url") != std::string_view::npos) {
        return {};
    }
    const auto table = ZAMNew<ZAMPrtColourTable>();
    ZAMPrintSVGColorParser parser;
    parser.SetColorTable(table.Get());
    ZAMUnicodeString text(value);
    unsigned int index = 0;
    return parser.ParseColorString(text, index) == 1 ? Trouble() : Fault::ValueNotUnderstood;
}

Trouble CheckOpacity(std::string_view value) {
    double number = 0.0;
    return value.find('%') == std::string_view::npos && ZAMReadDouble(value, number) == 1 ? Trouble()
                                                                                          : Fault::ValueNotUnderstood;
}

// Sizes in words are passed over, and a percentage is a factor.
Trouble CheckFontSize(std::string_view value) {
    return value.find('%') != std::string_view::npos ? Fault::ValueNotUnderstood : CheckLengthValue(value);
}

Trouble CheckSpacing(std::string_view value) {
    return ZAMTextMatches(value, "normal") ? Trouble() : CheckLengthValue(value);
}

// The two steps go the other way.
Trouble CheckWeight(std::string_view value) {
    return ZAMPrintSVGVocabulary::Holds("normal|bold|100|200|300|400|500|600|700|800|900", '|', value)
               ? Trouble()
               : Fault::ValueNotUnderstood;
}

// Dashes have no units.
Trouble CheckDashes(std::string_view value) {
    if (ZAMTextMatches(value, "none")) {
        return {};
    }
    for (ZAMPrintSVGTokenCursor<ZAMPrintSVGMinus::IsPart> cursor(value); !cursor.AtEnd();) {
        const std::string_view token = cursor.Next().text;
        if (const Trouble trouble = token.empty() ? Trouble() : CheckUnit(token, "px")) {
            return trouble;
        }
    }
    return {};
}

struct Row {
    std::string_view property;
    Trouble (*check)(std::string_view value);
};

constexpr Row kRows[] = {
    {"fill", CheckColour},
    {"stroke", CheckColour},
    {"color", CheckColour},
    {"opacity", CheckOpacity},
    {"fill-opacity", CheckOpacity},
    {"stroke-opacity", CheckOpacity},
    {"font-size", CheckFontSize},
    {"stroke-width", CheckLengthValue},
    {"letter-spacing", CheckSpacing},
    {"font-weight", CheckWeight},
    {"stroke-dasharray", CheckDashes},
};

} // namespace

void ZAMPrintSVGPreflightValues::CheckProperty(const ZAMLightXmlElementItf& element, std::string_view name,
                                               std::string_view value, ZAMPrintSVGPreflightReport& report) {
    const auto* const row =
        std::ranges::find_if(kRows, [&](const Row& each) { return ZAMTextMatches(each.property, name); });
    if (row == std::end(kRows) || value.empty() || ZAMTextMatches(value, "inherit")) {
        return;
    }
    if (const Trouble trouble = row->check(value)) {
        report.Add(*trouble, element, name, value);
    }
}

void ZAMPrintSVGPreflightValues::CheckLength(const ZAMLightXmlElementItf& element, std::string_view name,
                                             std::string_view value, ZAMPrintSVGPreflightReport& report) {
    // Of the lists that texts have only the first number counts.
    const bool isList = value.find_first_of(" ,") != std::string_view::npos;
    if (const Trouble trouble = isList ? Fault::ValueNotUnderstood : CheckLengthValue(value)) {
        report.Add(*trouble, element, name, value);
    }
}

void ZAMPrintSVGPreflightValues::CheckNumbers(const ZAMLightXmlElementItf& element, std::string_view name,
                                              std::string_view value, ZAMPrintSVGPreflightReport& report) {
    const bool isPath = name == "d";
    if (!isPath && name != "points" && name != "transform") {
        return;
    }
    const auto kind = isPath ? ZAMPrintSVGNumberText::Kind::Path : ZAMPrintSVGNumberText::Kind::Plain;
    if (ZAMPrintSVGNumberText::HasCrowdedNumbers(value, kind)) {
        report.Add(Fault::CrowdedNumbers, element, name);
    }
}
