// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/geometry/ZAMPrepressLength.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

/// The properties that change a printed picture, in the order in which they are computed: the font's size first, for
/// other lengths are relative to it.
enum class ZAMPrepressProperty : std::uint8_t {
    FontSize,
    Color,
    Display,
    Visibility,
    Opacity,
    Fill,
    FillOpacity,
    FillRule,
    Stroke,
    StrokeOpacity,
    StrokeWidth,
    StrokeLinecap,
    StrokeLinejoin,
    StrokeMiterlimit,
    StrokeDasharray,
    StrokeDashoffset,
    PaintOrder,
    VectorEffect,
    MarkerStart,
    MarkerMid,
    MarkerEnd,
    ClipPath,
    ClipRule,
    Mask,
    Filter,
    Overflow,
    StopColor,
    StopOpacity,
    FontFamily,
    FontWeight,
    FontStyle,
    FontStretch,
    FontVariant,
    TextAnchor,
    LetterSpacing,
    WordSpacing,
    TextDecoration,
    BaselineShift,
    AlignmentBaseline,
    DominantBaseline,
    WritingMode,
    Direction,
    UnicodeBidi,
    WhiteSpace,
    X,
    Y,
    Width,
    Height,
    Cx,
    Cy,
    R,
    Rx,
    Ry,
    Count,
    Custom = Count, ///< a variable of the document's author
};

inline constexpr std::size_t kZAMPrepressProperties = static_cast<std::size_t>(ZAMPrepressProperty::Count);

/// What values are relative to.
struct ZAMPrepressValueBases {
    double fontSize = 16.0; ///< of the element; of its parent when the font's size itself is computed
    int parentWeight = 400;
    ZAMPrepressViewportSize viewport;
};

/// Where a property ends up in the flattened document.
enum class ZAMPrepressUse : std::uint8_t {
    Folded, ///< into others
    Shape,  ///< on each element that paints
    Text,   ///< on each text and part of a text
    Bearer, ///< on the element that bears it
    Sheet,  ///< an attribute of certain elements that sheets may set, too
};

struct ZAMPrepressPropertyRow {
    ZAMPrepressProperty property;
    std::string_view name;
    ZAMPrepressUse use;
    bool isInherited;
    std::string_view initial;
    /// The computed value of a specified one; nothing when the text is no value of the property. The keywords that all
    /// properties have in common ("inherit" …) do not get here.
    std::optional<std::string> (*compute)(std::string_view value, const ZAMPrepressValueBases& bases);
};

/// In the order of the enumeration.
[[nodiscard]] std::span<const ZAMPrepressPropertyRow, kZAMPrepressProperties> ZAMPrepressGetProperties();
[[nodiscard]] const ZAMPrepressPropertyRow& ZAMPrepressGetRow(ZAMPrepressProperty property);

/// Null for a name that is no property's; names are in lower case.
[[nodiscard]] const ZAMPrepressPropertyRow* ZAMPrepressFindProperty(std::string_view name);

/// The keywords that every property has (CSS Cascade 4, 7.3).
enum class ZAMPrepressWideKeyword : std::uint8_t { None, Inherit, Initial, Unset };
[[nodiscard]] ZAMPrepressWideKeyword ZAMPrepressReadWideKeyword(std::string_view value);

/// No drawing has longer values. Others count as errors, for what a sheet says but once is read for each element.
inline constexpr std::size_t kZAMPrepressLongestValue = 2'000;

/// Whether the text is a value of the property: a declaration with another one is none.
[[nodiscard]] bool ZAMPrepressIsValue(ZAMPrepressProperty property, std::string_view value);
