// SPDX-License-Identifier: MIT
#pragma once

#include "framework/model/ZAMPrtTextElt.h"
#include "framework/visualisation/ZAMTextLayout.h"

/// The layout of a text element, about its position: the one that is measured and drawn.
inline ZAMTextLayout ZAMPrintLayOut(const ZAMPrtTextElt& element) {
    const ZAMPrtTextAttributes& attributes = element.GetTextAttributes();
    ZAMTextStyle style;
    style.font = attributes.GetFont();
    style.weight = static_cast<int>(attributes.GetWeight());
    style.height = attributes.GetHeight();
    style.anchor = static_cast<int>(attributes.GetAnchor());
    style.slant = attributes.GetSlant();
    style.direction = attributes.GetDirection();
    style.extraSpacing = attributes.GetExtraSpacing();
    style.expansion = attributes.GetExpansion();
    style.writingMode = static_cast<int>(attributes.GetWritingMode());
    return ZAMTextLayout(element.GetText(), style);
}

/// From the layout's units to the element's own coordinates.
inline ZAMMathAffine2D ZAMPrintTextPlacement(const ZAMPrtTextElt& element) {
    return {1.0, 0.0, 0.0, 1.0, element.GetPosition().x, element.GetPosition().y};
}
