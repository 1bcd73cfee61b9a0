// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/paint/ZAMPrepressRamp.h"
#include "prepress/paint/ZAMPrepressServer.h"

#include <optional>

/// A gradient as its element and those it refers to describe it (SVG 1.1, 13.2).
struct ZAMPrepressGradient {
    bool isRadial = false;
    bool isOfBox = true; ///< lengths are shares of the box that is painted
    ZAMMathAffine2D transform;
    ZAMMathPoint2D start; ///< of the vector; the focus of a radial gradient, inside its circle
    ZAMMathPoint2D end;   ///< of the vector; the centre of a radial gradient
    double radius = 0.0;
    double focalRadius = 0.0;                  ///< of the circle about the focus where the colours begin
    const ZAMPrepressElement* stops = nullptr; ///< the element whose stops it has
    ZAMPrepressSpread spread = ZAMPrepressSpread::Pad;

    /// Nothing when it paints nothing: without stops, or with a transform that cannot be undone.
    [[nodiscard]] static std::optional<ZAMPrepressGradient> Read(const ZAMPrepressServer& server);

    /// Its vector or circle has no extent: the colour of its last stop is everywhere.
    [[nodiscard]] bool IsPoint() const { return isRadial ? radius == 0.0 : start == end; }
};
