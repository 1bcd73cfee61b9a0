// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/style/ZAMPrepressComputer.h"

#include <array>

/// The computed values of an element's properties. The texts live as long as the tree.
class ZAMPrepressComputedStyle {
public:
    /// Initial values.
    ZAMPrepressComputedStyle();
    /// Of an element by its presentation attributes and the style of its parent.
    ZAMPrepressComputedStyle(const ZAMPrepressComputedStyle& parent, const ZAMPrepressElement& element,
                             ZAMPrepressComputer& computer);

    [[nodiscard]] std::string_view Get(ZAMPrepressProperty property) const {
        return _Values[static_cast<std::size_t>(property)];
    }
    /// Of a property whose computed value is a number.
    [[nodiscard]] double GetNumber(ZAMPrepressProperty property) const;
    [[nodiscard]] bool Is(ZAMPrepressProperty property, std::string_view value) const { return Get(property) == value; }

private:
    void Compute(const ZAMPrepressPropertyRow& row, std::string_view specified, const ZAMPrepressComputedStyle& parent,
                 const ZAMPrepressValueBases& bases, ZAMPrepressComputer& computer);

    std::array<std::string_view, kZAMPrepressProperties> _Values;
};
