// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressElement.h"
#include "prepress/geometry/ZAMPrepressNumberText.h"

#include <array>
#include <optional>
#include <string_view>

/// What lengths of relative units count against.
struct ZAMPrepressLengthBase {
    double whole = 0.0;     ///< what 100% is, in user units
    double fontSize = 16.0; ///< CSS's medium
};

/// A length (SVG 1.1, 7.10) in user units, 90 to the inch. Nothing for any other text, an empty one among them.
[[nodiscard]] std::optional<double> ZAMPrepressReadLength(std::string_view text,
                                                          const ZAMPrepressLengthBase& base = {});

/// A text that is one number and nothing else but white space about it.
[[nodiscard]] std::optional<double> ZAMPrepressReadNumber(std::string_view text);

/// The attribute's value when it is a number, otherwise the other value.
[[nodiscard]] double ZAMPrepressNumberOr(const ZAMPrepressElement& element, std::string_view attribute,
                                         double otherwise);

/// The numbers of a viewBox (SVG 1.1, 7.7): left, top, width and height. Nothing when it is in error, which negative
/// sizes are, too; sizes of 0 are none.
[[nodiscard]] std::optional<std::array<double, 4>> ZAMPrepressReadViewBox(std::string_view text);

/// The size that percentages count against.
struct ZAMPrepressViewportSize {
    double width = 0.0;
    double height = 0.0;

    /// What percentages of lengths count against that are neither horizontal nor vertical.
    [[nodiscard]] double GetDiagonal() const;
    /// Of the root element as the interpreter has it: its viewBox, or else its own width and height.
    [[nodiscard]] static ZAMPrepressViewportSize OfRoot(const ZAMPrepressElement& root);
};
