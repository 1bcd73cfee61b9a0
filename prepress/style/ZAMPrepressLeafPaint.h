// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressIds.h"
#include "prepress/style/ZAMPrepressComputedStyle.h"

/// What acts on the paint of an element besides its own style.
struct ZAMPrepressPaintScope {
    double opacity = 1.0;     ///< of the element and of the groups around it
    double strokeScale = 1.0; ///< a unit of the element, in units of the drawing
    bool isInMarker = false;  ///< paints may be those of the marked element
    bool isInClip = false;    ///< the rule for outlines that clip matters
};

/// Writes the paint of shapes, texts and images as attributes, in the one form that is read after this.
class ZAMPrepressLeafPaint {
public:
    explicit ZAMPrepressLeafPaint(ZAMPrepressTree& tree) : _Tree(tree), _Ids(tree) {}

    /// The element has no attributes of properties yet.
    void Write(ZAMPrepressElement& element, const ZAMPrepressComputedStyle& style, const ZAMPrepressPaintScope& scope);
    /// Colour and opacity of a gradient's stop.
    void WriteStop(ZAMPrepressElement& stop, const ZAMPrepressComputedStyle& style);

private:
    struct Resolved {
        std::string paint; // "none" when nothing is to be seen
        double opacity = 1.0;
    };

    [[nodiscard]] Resolved Resolve(ZAMPrepressProperty property, ZAMPrepressProperty opacity,
                                   const ZAMPrepressComputedStyle& style, const ZAMPrepressPaintScope& scope) const;
    [[nodiscard]] bool IsServer(std::string_view id) const;
    void WriteFill(ZAMPrepressElement& element, const ZAMPrepressComputedStyle& style,
                   const ZAMPrepressPaintScope& scope);
    void WriteStroke(ZAMPrepressElement& element, const ZAMPrepressComputedStyle& style,
                     const ZAMPrepressPaintScope& scope);
    void WriteDashes(ZAMPrepressElement& element, const ZAMPrepressComputedStyle& style, double scale);
    bool WriteMarkers(ZAMPrepressElement& element, const ZAMPrepressComputedStyle& style);
    void WriteText(ZAMPrepressElement& element, const ZAMPrepressPropertyRow& row, std::string_view value);
    void WriteNumber(ZAMPrepressElement& element, ZAMPrepressProperty property, double number);
    void WriteValue(ZAMPrepressElement& element, const ZAMPrepressComputedStyle& style, ZAMPrepressProperty property);

    ZAMPrepressTree& _Tree;
    ZAMPrepressIds _Ids;
};
