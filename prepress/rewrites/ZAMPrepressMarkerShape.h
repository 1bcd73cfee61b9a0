// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathAffine2D.h"
#include "framework/mathematics/ZAMMathBox2D.h"
#include "prepress/document/ZAMPrepressElement.h"
#include "prepress/geometry/ZAMPrepressLength.h"
#include "prepress/geometry/ZAMPrepressVertices.h"

#include <optional>

/// What the attributes of a marker element say (SVG 1.1, 11.6.2).
class ZAMPrepressMarkerShape {
public:
    /// Nothing for a marker that draws nothing. Percentages count against the viewport.
    [[nodiscard]] static std::optional<ZAMPrepressMarkerShape> Read(const ZAMPrepressElement& marker,
                                                                    const ZAMPrepressViewportSize& viewport);

    /// From the content's coordinates to those of the shape. `isStart`: it is the first vertex of the shape.
    [[nodiscard]] ZAMMathAffine2D GetMap(const ZAMPrepressVertex& vertex, double strokeWidth, bool isStart) const;

    /// What is seen of the content, in its coordinates; nothing when all of it is.
    [[nodiscard]] const std::optional<ZAMMathBox2D>& GetClip() const { return _Clip; }

private:
    void ReadFrame(const ZAMPrepressElement& marker, const ZAMMathBox2D& viewport, const ZAMMathBox2D& content);
    void ReadOrientation(std::string_view text);

    ZAMMathAffine2D _Frame; // from the content's coordinates to those whose origin is the vertex
    std::optional<ZAMMathBox2D> _Clip;
    bool _ScalesWithStroke = true;
    bool _IsAutomatic = false;
    bool _IsReversedAtStart = false;
    ZAMMathVector2D _Direction{1.0, 0.0}; // when it is not automatic
};
