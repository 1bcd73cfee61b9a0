// SPDX-License-Identifier: MIT
#include "prepress/text/ZAMPrepressTextWriter.h"

#include "prepress/geometry/ZAMPrepressNumberText.h"
#include "prepress/geometry/ZAMPrepressTransformText.h"
#include "prepress/text/ZAMPrepressTextMeasure.h"
#include "prepress/text/ZAMPrepressTextPaint.h"

#include <algorithm>
#include <string>
#include <utility>

namespace {

using Run = ZAMPrepressTextRun;
using Setting = ZAMPrepressTextSetting;

// What the whole text has, whatever becomes of it.
constexpr std::string_view kOfWhole[] = {"id", "transform", "clip-path", "mask", "filter"};
constexpr std::string_view kBlank = " ";
constexpr std::string_view kEndOfOverride = "\xE2\x80\xAC";
// By how much uprights lean, where a font has no slanted face.
constexpr double kLean = 0.2;

std::size_t CountLeadingBlanks(std::string_view text) {
    return std::min(text.find_first_not_of(kBlank), text.size());
}

std::string_view WithoutBlanks(std::string_view text) {
    text.remove_prefix(CountLeadingBlanks(text));
    return text.substr(0, text.find_last_not_of(kBlank) + 1);
}

bool IsPainted(const Run& run) {
    return run.isSeen && ZAMPrepressHasPaint(*run.span->element) && CountLeadingBlanks(run.text) < run.text.size();
}

// How far the first character that is no blank stands from the start of the run.
double IndentOf(const Run& run) {
    const std::size_t blanks = CountLeadingBlanks(run.text);
    if (blanks == 0) {
        return 0.0;
    }
    const double advance = ZAMPrepressText::GetAdvance(run.text.substr(0, blanks), run.setting->GetStyle());
    return (advance + run.setting->letterSpacing) * run.setting->stretch;
}

} // namespace

void ZAMPrepressTextWriter::Write(std::vector<Run>& runs, const ZAMPrepressTextStyles& styles) {
    ZAMPrepressTextDecorations decorations(_Tree, styles);
    for (Run& run : runs) {
        if (run.isSeen) {
            decorations.Add(run);
        }
    }
    std::erase_if(runs, [](const Run& run) { return !IsPainted(run); });
    if (runs.size() == 1 && decorations.IsEmpty() && runs.front().setting->link == nullptr) {
        WriteOne(runs.front());
    } else {
        WriteGroup(runs, decorations);
    }
}

// The text element becomes the run itself.
void ZAMPrepressTextWriter::WriteOne(const Run& run) {
    ZAMPrepressElement source;
    source.attributes = run.span->element->attributes;
    Clear();
    WriteRun(run, source, _Text);
}

void ZAMPrepressTextWriter::WriteGroup(const std::vector<Run>& runs, const ZAMPrepressTextDecorations& decorations) {
    ZAMPrepressElement& group = _Tree.NewElement("g");
    decorations.Draw(group, false);
    for (const Run& run : runs) {
        ZAMPrepressElement& element = _Tree.NewElement("text");
        WriteRun(run, *run.span->element, element);
        ZAMPrepressTree::Append(AddLink(run, group), element);
    }
    decorations.Draw(group, true);
    WriteNothing();
    std::ranges::for_each(group.children, [this](auto* child) { ZAMPrepressTree::Append(_Text, *child); });
}

void ZAMPrepressTextWriter::WriteNothing() {
    Clear();
    _Text.name = "g";
}

// The text element keeps what the whole text has.
void ZAMPrepressTextWriter::Clear() {
    std::erase_if(_Text.attributes, [](const ZAMPrepressElement::Attribute& attribute) {
        return std::ranges::find(kOfWhole, attribute.name) == std::end(kOfWhole);
    });
    std::erase_if(_Text.children,
                  [](const ZAMPrepressElement* child) { return !child->Is("title") && !child->Is("desc"); });
}

void ZAMPrepressTextWriter::SetNumber(ZAMPrepressElement& element, std::string_view attribute, double number) {
    element.Set(attribute, _Tree.Keep(ZAMPrepressNumberText(number)));
}

ZAMPrepressElement& ZAMPrepressTextWriter::AddLink(const Run& run, ZAMPrepressElement& group) {
    constexpr std::string_view kReference = "xlink:href";
    const ZAMPrepressElement* const source = run.setting->link;
    if (source == nullptr) {
        return group;
    }
    ZAMPrepressElement& link = _Tree.NewElement("a");
    link.Set(kReference, source->Get(kReference));
    ZAMPrepressTree::Append(group, link);
    return link;
}

void ZAMPrepressTextWriter::WriteRun(const Run& run, const ZAMPrepressElement& paint, ZAMPrepressElement& element) {
    SetPlace(run, IndentOf(run), element);
    SetFont(run, element);
    ZAMPrepressCopyPaint(paint, element);
    ZAMPrepressElement& characters = _Tree.NewElement({});
    const std::string_view text = WithoutBlanks(run.text);
    const std::string_view override = run.setting->override;
    characters.text =
        override.empty() ? _Tree.Keep(text) : _Tree.Keep(std::string(override).append(text).append(kEndOfOverride));
    ZAMPrepressTree::Append(element, characters);
}

void ZAMPrepressTextWriter::SetPlace(const Run& run, double indent, ZAMPrepressElement& element) {
    const Setting& setting = *run.setting;
    const double down = setting.baseline - setting.lift;
    const bool isVertical = setting.flow == Setting::Flow::TopToBottom;
    const ZAMMathVector2D axis = setting.GetAxis();
    const ZAMMathPoint2D origin =
        run.GetPoint(axis.x * indent - (isVertical ? down : 0.0), axis.y * indent + (isVertical ? 0.0 : down));
    const double lean = setting.font->leans ? kLean : 0.0;
    if (!run.IsTurned() && lean == 0.0 && setting.stretch == 1.0) {
        SetNumber(element, "x", origin.x);
        SetNumber(element, "y", origin.y);
        return;
    }
    const auto [x, y] = run.direction;
    const double wide = isVertical ? 1.0 : setting.stretch;
    const double high = isVertical ? setting.stretch : 1.0;
    const ZAMMathAffine2D map =
        ZAMMathAffine2D{x, y, -y, x, origin.x, origin.y} * ZAMMathAffine2D{wide, 0.0, -lean * high, high, 0.0, 0.0};
    std::string transform(element.Get("transform"));
    transform.append(transform.empty() ? "" : " ").append(ZAMPrepressTransformText(map));
    element.Set("transform", _Tree.Keep(std::move(transform)));
    element.Set("x", "0");
    element.Set("y", "0");
}

void ZAMPrepressTextWriter::SetFont(const Run& run, ZAMPrepressElement& element) {
    const Setting& setting = *run.setting;
    element.Set("font-family", _Tree.Keep(std::string_view(setting.font->family)));
    if (setting.font->weight != ZAMPrepressFont::kNormalWeight) {
        element.Set("font-weight", setting.font->weight);
    }
    SetNumber(element, "font-size", setting.size);
    if (setting.letterSpacing != 0.0) {
        SetNumber(element, "letter-spacing", setting.letterSpacing);
    }
    if (run.anchor != Setting::Anchor::Start) {
        element.Set("text-anchor", run.anchor == Setting::Anchor::Middle ? "middle" : "end");
    }
    if (setting.flow != Setting::Flow::LeftToRight) {
        element.Set("writing-mode", setting.flow == Setting::Flow::TopToBottom ? "tb" : "rl");
    }
}
