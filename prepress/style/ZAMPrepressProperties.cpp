// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressProperties.h"

#include "framework/base/ZAMTextCompare.h"
#include "prepress/style/ZAMPrepressCssEscapes.h"
#include "prepress/style/ZAMPrepressFontValues.h"
#include "prepress/style/ZAMPrepressValues.h"

#include <algorithm>
#include <array>

namespace {

using namespace ZAMPrepressValues;
using Property = ZAMPrepressProperty;
using Row = ZAMPrepressPropertyRow;
using Use = ZAMPrepressUse;

constexpr Keyword kDisplays[] = {{"none"},         {"inline"},     {"block"},        {"inline-block"}, {"list-item"},
                                 {"run-in"},       {"compact"},    {"marker"},       {"table"},        {"inline-table"},
                                 {"table-row"},    {"table-cell"}, {"flex"},         {"inline-flex"},  {"grid"},
                                 {"table-column"}, {"contents"},   {"table-caption"}};
constexpr Keyword kVisibilities[] = {{"visible"}, {"hidden"}, {"collapse", "hidden"}};
constexpr Keyword kFillRules[] = {{"nonzero"}, {"evenodd"}};
constexpr Keyword kCaps[] = {{"butt"}, {"round"}, {"square"}};
constexpr Keyword kJoins[] = {{"miter"}, {"round"}, {"bevel"}, {"miter-clip", "miter"}, {"arcs", "miter"}};
constexpr Keyword kVectorEffects[] = {{"none"}, {"non-scaling-stroke"}};
constexpr Keyword kOverflows[] = {{"visible"}, {"hidden"}, {"scroll"}, {"auto"}, {"clip", "hidden"}};
constexpr Keyword kFontStyles[] = {{"normal"}, {"italic"}, {"oblique"}};
constexpr Keyword kStretches[] = {{"normal"},        {"ultra-condensed"}, {"extra-condensed"},
                                  {"condensed"},     {"expanded"},        {"semi-condensed"},
                                  {"semi-expanded"}, {"extra-expanded"},  {"ultra-expanded"}};
constexpr Keyword kVariants[] = {{"normal"}, {"small-caps"}};
constexpr Keyword kAnchors[] = {{"start"}, {"middle"}, {"end"}};
constexpr Keyword kAlignments[] = {{"auto"},
                                   {"baseline"},
                                   {"before-edge", "text-before-edge"},
                                   {"text-before-edge"},
                                   {"text-top", "text-before-edge"},
                                   {"middle"},
                                   {"central"},
                                   {"after-edge", "text-after-edge"},
                                   {"text-after-edge"},
                                   {"text-bottom", "text-after-edge"},
                                   {"ideographic"},
                                   {"alphabetic"},
                                   {"hanging"},
                                   {"mathematical"},
                                   {"use-script", "auto"},
                                   {"no-change", "auto"},
                                   {"reset-size", "auto"}};
constexpr Keyword kWritingModes[] = {
    {"lr-tb"},       {"lr", "lr-tb"}, {"rl", "lr-tb"},          {"rl-tb", "lr-tb"},      {"horizontal-tb", "lr-tb"},
    {"tb", "tb-rl"}, {"tb-rl"},       {"vertical-rl", "tb-rl"}, {"vertical-lr", "tb-rl"}};
constexpr Keyword kDirections[] = {{"ltr"}, {"rtl"}};
constexpr Keyword kEmbeddings[] = {{"normal"},           {"embed"},    {"bidi-override"}, {"isolate"},
                                   {"isolate-override"}, {"plaintext"}};
constexpr Keyword kWhiteSpaces[] = {{"normal"}, {"pre"}, {"nowrap"}, {"pre-wrap"}, {"pre-line"}, {"break-spaces"}};

constexpr std::array<Row, kZAMPrepressProperties> kRows = {{
    {Property::FontSize, "font-size", Use::Text, true, "16", ComputeFontSize},
    {Property::Color, "color", Use::Folded, true, "#000000", ComputeColour},
    {Property::Display, "display", Use::Folded, false, "inline", ComputeKeyword<kDisplays>},
    {Property::Visibility, "visibility", Use::Folded, true, "visible", ComputeKeyword<kVisibilities>},
    {Property::Opacity, "opacity", Use::Folded, false, "1", ComputeOpacity},
    {Property::Fill, "fill", Use::Shape, true, "#000000", ComputePaint},
    {Property::FillOpacity, "fill-opacity", Use::Shape, true, "1", ComputeOpacity},
    {Property::FillRule, "fill-rule", Use::Shape, true, "nonzero", ComputeKeyword<kFillRules>},
    {Property::Stroke, "stroke", Use::Shape, true, "none", ComputePaint},
    {Property::StrokeOpacity, "stroke-opacity", Use::Shape, true, "1", ComputeOpacity},
    {Property::StrokeWidth, "stroke-width", Use::Shape, true, "1", ComputeSize},
    {Property::StrokeLinecap, "stroke-linecap", Use::Shape, true, "butt", ComputeKeyword<kCaps>},
    {Property::StrokeLinejoin, "stroke-linejoin", Use::Shape, true, "miter", ComputeKeyword<kJoins>},
    {Property::StrokeMiterlimit, "stroke-miterlimit", Use::Shape, true, "4", ComputeMiterLimit},
    {Property::StrokeDasharray, "stroke-dasharray", Use::Shape, true, "none", ComputeDashes},
    {Property::StrokeDashoffset, "stroke-dashoffset", Use::Shape, true, "0", ComputeLength},
    {Property::PaintOrder, "paint-order", Use::Folded, true, "normal", ComputePaintOrder},
    {Property::VectorEffect, "vector-effect", Use::Folded, false, "none", ComputeKeyword<kVectorEffects>},
    {Property::MarkerStart, "marker-start", Use::Shape, true, "none", ComputeReference},
    {Property::MarkerMid, "marker-mid", Use::Shape, true, "none", ComputeReference},
    {Property::MarkerEnd, "marker-end", Use::Shape, true, "none", ComputeReference},
    {Property::ClipPath, "clip-path", Use::Bearer, false, "none", ComputeReference},
    {Property::ClipRule, "clip-rule", Use::Shape, true, "nonzero", ComputeKeyword<kFillRules>},
    {Property::Mask, "mask", Use::Bearer, false, "none", ComputeReference},
    {Property::Filter, "filter", Use::Bearer, false, "none", ComputeReference},
    {Property::Overflow, "overflow", Use::Bearer, false, "", ComputeKeyword<kOverflows>},
    {Property::StopColor, "stop-color", Use::Folded, false, "#000000", ComputeStopColour},
    {Property::StopOpacity, "stop-opacity", Use::Folded, false, "1", ComputeOpacity},
    {Property::FontFamily, "font-family", Use::Text, true, "", ComputeFontFamily},
    {Property::FontWeight, "font-weight", Use::Text, true, "400", ComputeFontWeight},
    {Property::FontStyle, "font-style", Use::Text, true, "normal", ComputeKeyword<kFontStyles>},
    {Property::FontStretch, "font-stretch", Use::Text, true, "normal", ComputeKeyword<kStretches>},
    {Property::FontVariant, "font-variant", Use::Text, true, "normal", ComputeKeyword<kVariants>},
    {Property::TextAnchor, "text-anchor", Use::Text, true, "start", ComputeKeyword<kAnchors>},
    {Property::LetterSpacing, "letter-spacing", Use::Text, true, "0", ComputeSpacing},
    {Property::WordSpacing, "word-spacing", Use::Text, true, "0", ComputeSpacing},
    {Property::TextDecoration, "text-decoration", Use::Text, false, "none", ComputeDecoration},
    {Property::BaselineShift, "baseline-shift", Use::Bearer, false, "baseline", ComputeBaselineShift},
    {Property::AlignmentBaseline, "alignment-baseline", Use::Bearer, false, "auto", ComputeKeyword<kAlignments>},
    {Property::DominantBaseline, "dominant-baseline", Use::Text, true, "auto", ComputeKeyword<kAlignments>},
    {Property::WritingMode, "writing-mode", Use::Text, true, "lr-tb", ComputeKeyword<kWritingModes>},
    {Property::Direction, "direction", Use::Text, true, "ltr", ComputeKeyword<kDirections>},
    {Property::UnicodeBidi, "unicode-bidi", Use::Bearer, false, "normal", ComputeKeyword<kEmbeddings>},
    {Property::WhiteSpace, "white-space", Use::Text, true, "normal", ComputeKeyword<kWhiteSpaces>},
    {Property::X, "x", Use::Sheet, false, "0", ComputeLength},
    {Property::Y, "y", Use::Sheet, false, "0", ComputeLength},
    {Property::Width, "width", Use::Sheet, false, "0", ComputeSize},
    {Property::Height, "height", Use::Sheet, false, "0", ComputeSize},
    {Property::Cx, "cx", Use::Sheet, false, "0", ComputeLength},
    {Property::Cy, "cy", Use::Sheet, false, "0", ComputeLength},
    {Property::R, "r", Use::Sheet, false, "0", ComputeSize},
    {Property::Rx, "rx", Use::Sheet, false, "0", ComputeSize},
    {Property::Ry, "ry", Use::Sheet, false, "0", ComputeSize},
}};

constexpr bool IsInOrder() {
    for (std::size_t i = 0; i < kRows.size(); ++i) {
        if (static_cast<std::size_t>(kRows[i].property) != i) {
            return false;
        }
    }
    return true;
}
static_assert(IsInOrder());

// The rows by their names: each stands at its slot or in one of those that follow, up to the first that is free.
constexpr std::size_t kSlots = 256;

constexpr std::size_t GetSlot(std::string_view name) {
    const auto at = [&](std::size_t index) { return static_cast<unsigned char>(name[index]); };
    return (name.size() * 37 + at(0) * 5U + at(name.size() / 2) * 11U + at(name.size() - 1) * 3U) % kSlots;
}

constexpr auto kByName = [] {
    std::array<const Row*, kSlots> slots{};
    for (const Row& row : kRows) {
        std::size_t slot = GetSlot(row.name);
        while (slots[slot] != nullptr) {
            slot = (slot + 1) % kSlots;
        }
        slots[slot] = &row;
    }
    return slots;
}();

} // namespace

std::span<const Row, kZAMPrepressProperties> ZAMPrepressGetProperties() {
    return kRows;
}

const Row& ZAMPrepressGetRow(Property property) {
    return kRows[static_cast<std::size_t>(property)];
}

const Row* ZAMPrepressFindProperty(std::string_view name) {
    if (name.empty()) {
        return nullptr;
    }
    for (std::size_t slot = GetSlot(name); kByName[slot] != nullptr; slot = (slot + 1) % kSlots) {
        if (kByName[slot]->name == name) {
            return kByName[slot];
        }
    }
    return nullptr;
}

ZAMPrepressWideKeyword ZAMPrepressReadWideKeyword(std::string_view value) {
    using Keyword = ZAMPrepressWideKeyword;
    static constexpr std::pair<std::string_view, Keyword> kKeywords[] = {
        {"inherit", Keyword::Inherit}, {"initial", Keyword::Initial},    {"unset", Keyword::Unset},
        {"revert", Keyword::Unset},    {"revert-layer", Keyword::Unset},
    };
    const std::string_view word = ZAMPrepressCss::Trim(value);
    for (const auto& [text, keyword] : kKeywords) {
        if (word.size() == text.size() && ZAMTextMatches(word, text)) {
            return keyword;
        }
    }
    return Keyword::None;
}

bool ZAMPrepressIsValue(Property property, std::string_view value) {
    return value.size() <= kZAMPrepressLongestValue &&
           (ZAMPrepressReadWideKeyword(value) != ZAMPrepressWideKeyword::None ||
            ZAMPrepressGetRow(property).compute(value, {}).has_value());
}
