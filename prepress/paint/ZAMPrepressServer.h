// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathAffine2D.h"
#include "prepress/document/ZAMPrepressIds.h"
#include "prepress/geometry/ZAMPrepressLength.h"

#include <optional>
#include <span>
#include <string_view>
#include <vector>

/// A gradient or pattern element together with those whose attributes and content it takes over by its link, and what
/// its lengths are measured by.
class ZAMPrepressServer {
public:
    /// `viewport` is the size that percentages of user space refer to.
    ZAMPrepressServer(ZAMPrepressElement& element, const ZAMPrepressIds& ids, const ZAMPrepressViewportSize& viewport);

    /// Gradient and pattern elements are paint servers.
    [[nodiscard]] static bool IsServer(const ZAMPrepressElement& element);
    [[nodiscard]] static bool IsGradient(const ZAMPrepressElement& element);

    /// The element itself, then those that it refers to, the nearest first.
    [[nodiscard]] std::span<ZAMPrepressElement* const> GetElements() const { return _Elements; }
    /// The attribute of the first element that has it; empty when none has.
    [[nodiscard]] std::string_view Get(std::string_view attribute) const;
    /// Whether the attribute (gradientUnits and its like) says that lengths are shares of the box that is painted.
    [[nodiscard]] bool IsOfBox(std::string_view attribute, bool initially) const;
    /// The matrix of a transform attribute; nothing when it is in error or cannot be undone.
    [[nodiscard]] std::optional<ZAMMathAffine2D> GetTransform(std::string_view attribute) const;

    /// What a percentage refers to in user space.
    enum class Percentage { OfWidth, OfHeight, OfDiagonal };
    /// A length attribute. Shares of a box count 1 for the whole; what is missing or in error gives
    /// `initial`.
    [[nodiscard]] double GetLength(std::string_view attribute, Percentage percentage, bool isOfBox,
                                   std::string_view initial) const;

private:
    std::vector<ZAMPrepressElement*> _Elements;
    ZAMPrepressViewportSize _Viewport;
};
