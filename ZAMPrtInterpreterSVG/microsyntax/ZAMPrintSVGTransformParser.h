// SPDX-License-Identifier: MIT
#pragma once

#include "framework/model/ZAMPrtGraphicPrimitiveElt.h"

#include <string_view>

/// Reads a list of transform functions (SVG 1.1, 7.6) onto the transform that an element has already. The list is
/// wrapped in two y flips about the document's height, which is its meaning in the model's upward coordinates.
class ZAMPrintSVGTransformParser {
public:
    /// Always 1.
    int SetImageSize(double width, double height);

    /// 1, or -1 for an empty text or a null element. An element of a class that bears no transform stays as it is.
    int ParseTransformString(std::string_view text, ZAMPrtGraphicPrimitiveElt* primitive) const;

    double _ImageWidth = 0.0;
    double _ImageHeight = 0.0;
    bool _FlipY = true;

private:
    void AddFlip(ZAMPrtTransformAttributes& transform) const;
};
