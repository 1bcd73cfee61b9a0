// SPDX-License-Identifier: MIT
// The readers of the font and text properties (SVG 1.1, 10). A value that is not understood changes nothing, but any
// letter spacing that is no length is 0.
#include "framework/base/ZAMNumberReading.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGKeywords.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGParser.h"

#include <algorithm>
#include <string>

namespace {

constexpr ZAMPrintSVGKeyword<ZAMPrtTextWritingMode> kWritingModes[] = {
    {"lr-tb", ZAMPrtTextWritingMode::LeftToRight}, {"rl-tb", ZAMPrtTextWritingMode::RightToLeft},
    {"tb-rl", ZAMPrtTextWritingMode::TopToBottom}, {"lr", ZAMPrtTextWritingMode::LeftToRight},
    {"rl", ZAMPrtTextWritingMode::RightToLeft},    {"tb", ZAMPrtTextWritingMode::TopToBottom},
};

// The horizontal part of an anchor code.
constexpr ZAMPrintSVGKeyword<int> kAnchors[] = {{"start", 0}, {"middle", 1}, {"end", 2}};

constexpr ZAMPrintSVGKeyword<ZAMPrintTextAttribute> kWeights[] = {
    {"normal", ZAMPrintTextAttribute::WeightNormal}, {"bold", ZAMPrintTextAttribute::WeightBold},
    {"100", ZAMPrintTextAttribute::WeightLight},     {"200", ZAMPrintTextAttribute::WeightLight},
    {"300", ZAMPrintTextAttribute::WeightNormal},    {"400", ZAMPrintTextAttribute::WeightNormal},
    {"500", ZAMPrintTextAttribute::WeightNormal},    {"600", ZAMPrintTextAttribute::WeightBold},
    {"700", ZAMPrintTextAttribute::WeightBold},      {"800", ZAMPrintTextAttribute::WeightBlack},
    {"900", ZAMPrintTextAttribute::WeightBlack},
};

// The steps go the other way than their names say: "bolder" is one step lighter.
constexpr ZAMPrintSVGKeyword<int> kWeightSteps[] = {{"bolder", -1}, {"lighter", 1}};

constexpr std::string_view kIgnoredSizes[] = {"xx-small", "x-small",  "small",  "medium", "large",
                                              "x-large",  "xx-large", "larger", "smaller"};

template <class Code> int Number(Code code) {
    return static_cast<int>(code);
}

ZAMPrintTextAttribute Stepped(ZAMPrintTextAttribute weight, int step) {
    const int lightest = Number(ZAMPrintTextAttribute::WeightLight);
    const int blackest = Number(ZAMPrintTextAttribute::WeightBlack);
    const int current = Number(weight);
    if (current < lightest || current > blackest) {
        return weight;
    }
    return static_cast<ZAMPrintTextAttribute>(std::clamp(current + step, lightest, blackest));
}

} // namespace

void ZAMPrintSVGParser::ReadWritingMode(std::string_view value, PendingPaint& /*pending*/) {
    if (const auto* keyword = ZAMPrintSVGFindKeyword(kWritingModes, value)) {
        _TextAttributes.SetWritingMode(keyword->code);
    }
}

// The keyword is spelt "nornal"; "normal" is read as a length, which it is not, and gives 0.
void ZAMPrintSVGParser::ReadLetterSpacing(std::string_view value, PendingPaint& /*pending*/) {
    if (ZAMTextMatches(value, "nornal") || ZAMTextMatches(value, "inherit")) {
        return;
    }
    double length = 0.0;
    GetHorLength(value, length);
    _TextAttributes.SetExtraSpacing(length);
}

// The vertical part of the anchor is kept; one that is no anchor becomes the baseline.
void ZAMPrintSVGParser::ReadTextAnchor(std::string_view value, PendingPaint& /*pending*/) {
    const auto* const keyword = ZAMPrintSVGFindKeyword(kAnchors, value);
    if (keyword == nullptr) {
        return;
    }
    const int first = Number(ZAMPrintTextAttribute::AnchorFirst);
    const int current = Number(_TextAttributes.GetAnchor());
    const bool isAnchor = current >= first && current <= Number(ZAMPrintTextAttribute::AnchorLast);
    constexpr int kBaseline = 1;
    const int vertical = isAnchor ? (current - first) % 4 : kBaseline;
    _TextAttributes.SetAnchor(static_cast<ZAMPrintTextAttribute>(first + 4 * keyword->code + vertical));
}

void ZAMPrintSVGParser::ReadFontFamily(std::string_view value, PendingPaint& /*pending*/) {
    if (ZAMFont* const font = _Fonts.FindInList(value)) {
        _TextAttributes.SetFont(font);
    }
}

// A percentage is a whole number and a factor as it stands: "150%" is 150 times as large.
void ZAMPrintSVGParser::ReadFontSize(std::string_view value, PendingPaint& /*pending*/) {
    if (std::ranges::any_of(kIgnoredSizes, [value](std::string_view size) { return ZAMTextMatches(size, value); })) {
        return;
    }
    const std::size_t percent = value.find('%');
    if (percent != std::string_view::npos) {
        std::string number(value);
        number.erase(percent, 1);
        unsigned int factor = 100;
        if (ZAMReadUnsigned(number, factor) == 1) {
            _TextAttributes.SetHeight(factor * _TextAttributes.GetHeight());
        }
        return;
    }
    double height = 0.0;
    if (GetVertLength(value, height) > 0) {
        _TextAttributes.SetHeight(height);
    }
}

void ZAMPrintSVGParser::ReadFontWeight(std::string_view value, PendingPaint& /*pending*/) {
    if (const auto* step = ZAMPrintSVGFindKeyword(kWeightSteps, value)) {
        _TextAttributes.SetWeight(Stepped(_TextAttributes.GetWeight(), step->code));
    } else if (const auto* weight = ZAMPrintSVGFindKeyword(kWeights, value)) {
        _TextAttributes.SetWeight(weight->code);
    }
}
