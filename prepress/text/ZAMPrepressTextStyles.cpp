// SPDX-License-Identifier: MIT
#include "prepress/text/ZAMPrepressTextStyles.h"

#include "prepress/geometry/ZAMPrepressLength.h"

#include <algorithm>
#include <iterator>

namespace {

using Setting = ZAMPrepressTextSetting;
using Metrics = ZAMPrepressFontMetrics;

constexpr ZAMPrepressLengthBase kDefaults;
// Shares of the font's size by which sub- and superscripts are moved.
constexpr double kSubscript = -0.2;
constexpr double kSuperscript = 0.4;

struct Baseline {
    std::string_view name;
    double (*height)(const Metrics& font); ///< over the font's own one
};
// The fonts' own tables of these are hardly ever filled in.
constexpr Baseline kBaselines[] = {
    {"middle", [](const Metrics& font) { return font.xHeight / 2.0; }},
    {"central", [](const Metrics& font) { return (font.ascent - font.descent) / 2.0; }},
    {"hanging", [](const Metrics& font) { return font.ascent * 0.8; }},
    {"mathematical", [](const Metrics& font) { return font.ascent * 0.5; }},
    {"text-before-edge", [](const Metrics& font) { return font.ascent; }},
    {"text-after-edge", [](const Metrics& font) { return -font.descent; }},
    {"ideographic", [](const Metrics& font) { return -font.descent; }},
};

double BaselineHeight(const ZAMPrepressElement& element, const Setting& setting) {
    std::string_view name = element.Get("alignment-baseline");
    if (name.empty() || name == "auto" || name == "baseline") {
        name = element.Get("dominant-baseline");
    }
    const auto* const found = std::ranges::find(kBaselines, name, &Baseline::name);
    if (found == std::end(kBaselines) || setting.flow == Setting::Flow::TopToBottom) {
        return 0.0;
    }
    return found->height(setting.GetMetrics());
}

double BaselineShift(const ZAMPrepressElement& element, double sizeAround) {
    const std::string_view shift = element.Get("baseline-shift");
    if (shift == "sub" || shift == "super") {
        return sizeAround * (shift == "sub" ? kSubscript : kSuperscript);
    }
    return ZAMPrepressReadNumber(shift).value_or(0.0);
}

Setting::Anchor AnchorOf(const ZAMPrepressElement& element) {
    const std::string_view anchor = element.Get("text-anchor");
    return anchor == "middle" ? Setting::Anchor::Middle
                              : (anchor == "end" ? Setting::Anchor::End : Setting::Anchor::Start);
}

bool IsLeftward(const ZAMPrepressElement& element) {
    return element.Get("direction") == "rtl";
}

Setting::Flow FlowOf(const ZAMPrepressElement& text) {
    if (text.Get("writing-mode").starts_with("tb")) {
        return Setting::Flow::TopToBottom;
    }
    return IsLeftward(text) ? Setting::Flow::RightToLeft : Setting::Flow::LeftToRight;
}

// Within a text the direction counts only where it is embedded (CSS 2.1, 9.10).
void ReadDirection(const ZAMPrepressElement& element, Setting& setting) {
    const std::string_view embedding = element.Get("unicode-bidi");
    if (embedding.empty() || embedding == "normal" || setting.flow == Setting::Flow::TopToBottom) {
        return;
    }
    setting.flow = FlowOf(element);
    constexpr std::string_view kLeftToRightOverride = "\xE2\x80\xAD";
    constexpr std::string_view kRightToLeftOverride = "\xE2\x80\xAE";
    if (embedding.ends_with("override")) {
        setting.override = IsLeftward(element) ? kRightToLeftOverride : kLeftToRightOverride;
    }
}

// What an element has of the one around it; the rest are properties, which each element has itself.
Setting Inherited(const Setting& around) {
    Setting setting;
    setting.lift = around.lift;
    setting.override = around.override;
    setting.link = around.link;
    setting.isDecorated = around.isDecorated;
    setting.path = around.path;
    setting.pathStart = around.pathStart;
    setting.isLost = around.isLost;
    return setting;
}

} // namespace

ZAMTextStyle ZAMPrepressTextSetting::GetStyle() const {
    ZAMTextStyle style = fonts->GetStyle(*font);
    style.height = size;
    style.extraSpacing = letterSpacing;
    style.writingMode = static_cast<int>(flow);
    return style;
}

Metrics ZAMPrepressTextSetting::GetMetrics() const {
    const Metrics& metrics = fonts->GetMetrics(*font);
    return {metrics.ascent * size, metrics.descent * size, metrics.xHeight * size};
}

// Each span stands behind the one that it is in.
ZAMPrepressTextStyles::ZAMPrepressTextStyles(const ZAMPrepressTextContent& content, ZAMPrepressFonts& fonts,
                                             ZAMPrepressTextReferences& references)
    : _Content(content), _Fonts(fonts), _References(references) {
    _Settings.reserve(content.GetSpans().size());
    for (const ZAMPrepressTextSpan& span : content.GetSpans()) {
        _Settings.push_back(Read(span));
    }
}

void ZAMPrepressTextStyles::Adjust(const Adjustments& adjustments) {
    for (const ZAMPrepressTextSpan& span : _Content.GetSpans()) {
        for (const ZAMPrepressTextSpan* each = &span; each != nullptr; each = each->parent) {
            if (const auto adjusted = adjustments.find(each); adjusted != adjustments.end()) {
                _Settings[span.index].letterSpacing += adjusted->second.spacing;
                _Settings[span.index].stretch *= adjusted->second.stretch;
            }
        }
    }
}

Setting ZAMPrepressTextStyles::Read(const ZAMPrepressTextSpan& span) {
    const ZAMPrepressElement& element = *span.element;
    const Setting* const around = span.parent == nullptr ? nullptr : &Get(*span.parent);
    Setting setting = around == nullptr ? Setting() : Inherited(*around);
    setting.fonts = &_Fonts;
    setting.font = &_Fonts.Find(element);
    setting.size = ZAMPrepressNumberOr(element, "font-size", kDefaults.fontSize);
    setting.anchor = AnchorOf(element);
    setting.flow = around == nullptr ? FlowOf(element) : around->flow;
    ReadDirection(element, setting);
    setting.letterSpacing = ZAMPrepressNumberOr(element, "letter-spacing", 0.0);
    setting.wordSpacing = ZAMPrepressNumberOr(element, "word-spacing", 0.0);
    setting.lift += BaselineShift(element, around == nullptr ? setting.size : around->size);
    setting.baseline = BaselineHeight(element, setting);
    setting.link = span.Is("a") && element.Has("xlink:href") ? &element : setting.link;
    setting.isDecorated = setting.isDecorated || element.Has("text-decoration");
    if (span.Is("textPath")) {
        ReadPath(element, setting);
    }
    return setting;
}

void ZAMPrepressTextStyles::ReadPath(const ZAMPrepressElement& textPath, ZAMPrepressTextSetting& setting) {
    const ZAMPrepressTextReferences::Path* const path = _References.FindPath(textPath);
    if (path == nullptr) {
        setting.isLost = true;
        return;
    }
    setting.path = &path->line;
    const std::string_view start = textPath.Get("startOffset");
    const double share = start.ends_with('%') ? 1.0 : path->scale;
    setting.pathStart = share * ZAMPrepressReadLength(start, {path->line.GetLength(), setting.size}).value_or(0.0);
}
