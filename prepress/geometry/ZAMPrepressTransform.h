// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathAffine2D.h"
#include "prepress/geometry/ZAMPrepressScanner.h"

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

/// The matrix of a transform attribute (SVG 1.1, 7.6); the identity for an empty one, nothing when it is in error.
[[nodiscard]] std::optional<ZAMMathAffine2D> ZAMPrepressReadTransform(std::string_view text);

/// Cuts a list of transform functions into its functions, without a copy.
class ZAMPrepressTransformFunctions {
public:
    /// The text must outlive the functions.
    explicit ZAMPrepressTransformFunctions(std::string_view text) : _Scanner(text) {}

    struct Function {
        std::string_view name; ///< one that SVG knows, with as many arguments as it may have
        std::array<std::string_view, 6> arguments;
        std::size_t count = 0; ///< of the arguments
        std::string_view open; ///< the brackets where they stand in the text
        std::string_view close;

        [[nodiscard]] std::span<const std::string_view> GetArguments() const {
            return std::span(arguments).first(count);
        }

        [[nodiscard]] ZAMMathAffine2D GetMatrix() const;
    };

    /// False at the end of the list and at its first error; `function` is unspecified then.
    bool Next(Function& function);

    /// Whether Next stopped at an error, which makes the whole list void.
    [[nodiscard]] bool HasFailed() const { return _Failed; }

private:
    bool TakeFunction(Function& function);

    ZAMPrepressScanner _Scanner;
    bool _Failed = false;
};
