// SPDX-License-Identifier: MIT
#include "prepress/rewrites/ZAMPrepressStyle.h"

#include "prepress/geometry/ZAMPrepressScanner.h"
#include "prepress/style/ZAMPrepressColourNames.h"
#include "prepress/style/ZAMPrepressFlattening.h"
#include "prepress/style/ZAMPrepressLeafLengths.h"

#include <algorithm>

namespace {

using Property = ZAMPrepressProperty;

bool IsPlainColour(std::string_view value) {
    if (value.starts_with('#')) {
        return (value.size() == 4 || value.size() == 7) &&
               value.find_first_not_of("0123456789abcdefABCDEF", 1) == std::string_view::npos;
    }
    return value == "none" || (value != "rebeccapurple" && ZAMPrepressFindColour(value).has_value());
}

// A number, with a unit that needs no font.
bool IsPlainLength(std::string_view value) {
    static constexpr std::string_view kUnits[] = {"", "%", "px", "pt", "pc", "cm", "mm", "in"};
    ZAMPrepressScanner scanner(value);
    scanner.SkipSpace();
    return !scanner.TakeNumber().empty() && std::ranges::find(kUnits, scanner.GetRest()) != std::end(kUnits);
}

// One that is not negative and has no relation to the viewport.
bool IsPlainSize(std::string_view value) {
    return IsPlainLength(value) && !value.ends_with('%') && value.find('-') == std::string_view::npos;
}

bool IsPlainWord(std::string_view value) {
    static constexpr std::string_view kWords[] = {"butt",  "round",  "square", "miter",  "bevel",
                                                  "start", "middle", "end",    "normal", "bold"};
    return std::ranges::find(kWords, value) != std::end(kWords);
}

struct Plain {
    Property property;
    bool (*isPlain)(std::string_view value);
};

// Values that the interpreter itself reads, and hands down, as they are meant.
constexpr Plain kPlain[] = {
    {Property::Fill, IsPlainColour},         {Property::Stroke, IsPlainColour},
    {Property::StrokeWidth, IsPlainSize},    {Property::StrokeLinecap, IsPlainWord},
    {Property::StrokeLinejoin, IsPlainWord}, {Property::FontSize, IsPlainSize},
    {Property::FontWeight, IsPlainWord},     {Property::TextAnchor, IsPlainWord},
};

bool IsPlain(std::string_view name, std::string_view value) {
    if (ZAMPrepressIsGeometry(name)) {
        return IsPlainLength(value);
    }
    const ZAMPrepressPropertyRow* const row = ZAMPrepressFindProperty(name);
    if (row == nullptr) {
        return name != "marker" && name != "font";
    }
    const auto* const plain = std::ranges::find(kPlain, row->property, &Plain::property);
    return plain != std::end(kPlain) && plain->isPlain(value);
}

} // namespace

bool ZAMPrepressStyle::Concerns(const ZAMLightXmlElementItf& element) {
    for (std::size_t i = 0; i < element.GetAttributeCount(); ++i) {
        const auto attribute = element.GetAttributeAt(i);
        if (!IsPlain(attribute.name, attribute.value)) {
            return true;
        }
    }
    return false;
}

void ZAMPrepressStyle::Rewrite(ZAMPrepressTree& tree) {
    ZAMPrepressFlattening(tree).Flatten();
}
