// SPDX-License-Identifier: MIT
#include "prepress/text/ZAMPrepressTextDecorations.h"

#include "prepress/geometry/ZAMPrepressNumberText.h"
#include "prepress/geometry/ZAMPrepressTransformText.h"
#include "prepress/text/ZAMPrepressTextPaint.h"

#include <cmath>
#include <iterator>

namespace {

using Metrics = ZAMPrepressFontMetrics;

constexpr std::string_view kProperty = "text-decoration";
// What fonts usually give, as shares of their size.
constexpr double kThickness = 0.07;
constexpr double kUnderline = -0.11;

struct Kind {
    std::string_view name;
    double (*height)(const Metrics& font, double size); ///< of its middle, over the baseline
    bool isAbove;                                       ///< the characters
};
constexpr Kind kKinds[] = {
    {"underline", [](const Metrics& /*font*/, double size) { return kUnderline * size; }, false},
    {"overline", [](const Metrics& font, double size) { return font.ascent - kThickness / 2.0 * size; }, false},
    {"line-through", [](const Metrics& font, double /*size*/) { return font.xHeight / 2.0; }, true},
};

bool Has(const ZAMPrepressTextSpan& span, std::string_view kind) {
    return span.element->Get(kProperty).find(kind) != std::string_view::npos;
}

// A line belongs to the outermost element that has it.
bool Begins(const ZAMPrepressTextSpan& span, std::string_view kind) {
    return Has(span, kind) && (span.parent == nullptr || !Has(*span.parent, kind));
}

} // namespace

void ZAMPrepressTextDecorations::Add(ZAMPrepressTextRun& run) {
    if (!run.setting->isDecorated) {
        return;
    }
    for (const ZAMPrepressTextSpan* span = run.span; span != nullptr; span = span->parent) {
        for (std::size_t kind = 0; kind < std::size(kKinds); ++kind) {
            if (Begins(*span, kKinds[kind].name)) {
                Add(*span, kind, run);
            }
        }
    }
}

// Along the run, but about the baseline of the element that asks for it.
void ZAMPrepressTextDecorations::Add(const ZAMPrepressTextSpan& span, std::size_t kind, ZAMPrepressTextRun& run) {
    using Setting = ZAMPrepressTextSetting;
    const Setting& setting = _Styles.Get(span);
    if (run.setting->flow == Setting::Flow::TopToBottom || !setting.IsSeen()) {
        return;
    }
    const double length = ZAMPrepressTextRuns::GetAdvance(run);
    if (length <= 0.0) {
        return;
    }
    const double before = Setting::GetShare(run.anchor) * (length - run.setting->letterSpacing * run.setting->stretch);
    const double left = run.setting->flow == Setting::Flow::RightToLeft ? before - length : -before;
    const double height = kKinds[kind].height(setting.GetMetrics(), setting.size);
    const ZAMMathPoint2D origin = run.GetPoint(left, setting.baseline - setting.lift - height);
    Add({&span, kind, origin, run.direction, length, kThickness * setting.size});
}

void ZAMPrepressTextDecorations::Add(const Line& line) {
    constexpr double kNear = 1e-6;
    const auto goesOn = [&line](const Line& last) {
        return last.span == line.span && last.kind == line.kind && last.direction == line.direction &&
               std::abs(last.origin.x + last.length * last.direction.x - line.origin.x) < kNear * line.thickness &&
               std::abs(last.origin.y + last.length * last.direction.y - line.origin.y) < kNear * line.thickness;
    };
    for (std::size_t back = 0; back < std::size(kKinds) && back < _Lines.size(); ++back) {
        Line& last = _Lines[_Lines.size() - 1 - back];
        if (goesOn(last)) {
            last.length += line.length;
            return;
        }
    }
    _Lines.push_back(line);
}

void ZAMPrepressTextDecorations::Draw(ZAMPrepressElement& group, bool areAbove) const {
    const auto text = [&](double number) { return _Tree.Keep(ZAMPrepressNumberText(number)); };
    for (const Line& line : _Lines) {
        if (kKinds[line.kind].isAbove != areAbove) {
            continue;
        }
        ZAMPrepressElement& rectangle = _Tree.NewElement("rect");
        const bool isTurned = line.direction.y != 0.0 || line.direction.x != 1.0;
        const double top = -line.thickness / 2.0;
        if (isTurned) {
            const auto [x, y] = line.direction;
            rectangle.Set("transform",
                          _Tree.Keep(ZAMPrepressTransformText({x, y, -y, x, line.origin.x, line.origin.y})));
        }
        rectangle.Set("x", text(isTurned ? 0.0 : line.origin.x));
        rectangle.Set("y", text(isTurned ? top : line.origin.y + top));
        rectangle.Set("width", text(line.length));
        rectangle.Set("height", text(line.thickness));
        ZAMPrepressCopyPaint(*line.span->element, rectangle);
        ZAMPrepressTree::Append(group, rectangle);
    }
}
