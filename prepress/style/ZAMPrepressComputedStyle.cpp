// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressComputedStyle.h"

namespace {

using Property = ZAMPrepressProperty;
using Row = ZAMPrepressPropertyRow;

} // namespace

ZAMPrepressComputedStyle::ZAMPrepressComputedStyle() {
    for (const Row& row : ZAMPrepressGetProperties()) {
        _Values[static_cast<std::size_t>(row.property)] = row.initial;
    }
}

ZAMPrepressComputedStyle::ZAMPrepressComputedStyle(const ZAMPrepressComputedStyle& parent,
                                                   const ZAMPrepressElement& element, ZAMPrepressComputer& computer)
    : _Values(parent._Values) {
    for (const Row& row : ZAMPrepressGetProperties()) {
        if (!row.isInherited) {
            _Values[static_cast<std::size_t>(row.property)] = row.initial;
        }
    }
    ZAMPrepressValueBases bases{parent.GetNumber(Property::FontSize),
                                static_cast<int>(parent.GetNumber(Property::FontWeight)), computer.GetViewport()};
    const auto compute = [&](bool isFontSize) {
        for (const ZAMPrepressElement::Attribute& attribute : element.attributes) {
            const Row* const row = attribute.value.empty() ? nullptr : ZAMPrepressFindProperty(attribute.name);
            if (row != nullptr && (row->property == Property::FontSize) == isFontSize) {
                Compute(*row, attribute.value, parent, bases, computer);
            }
        }
    };
    if (element.Has(ZAMPrepressGetRow(Property::FontSize).name)) {
        compute(true);
        bases.fontSize = GetNumber(Property::FontSize);
    }
    compute(false);
}

double ZAMPrepressComputedStyle::GetNumber(Property property) const {
    return ZAMPrepressReadNumber(Get(property)).value_or(0.0);
}

void ZAMPrepressComputedStyle::Compute(const Row& row, std::string_view specified,
                                       const ZAMPrepressComputedStyle& parent, const ZAMPrepressValueBases& bases,
                                       ZAMPrepressComputer& computer) {
    using Wide = ZAMPrepressWideKeyword;
    if (row.use == ZAMPrepressUse::Sheet) {
        return;
    }
    std::string_view& value = _Values[static_cast<std::size_t>(row.property)];
    const Wide keyword = ZAMPrepressReadWideKeyword(specified);
    if (keyword == Wide::Inherit) {
        value = parent.Get(row.property);
    } else if (keyword == Wide::Initial) {
        value = row.initial;
    } else if (keyword == Wide::None) {
        const auto computed = computer.Compute(row, specified, bases);
        // A colour that is to be the current one is that of the parent.
        if (computed && (row.property != Property::Color || *computed != "currentColor")) {
            value = *computed;
        }
    }
}
