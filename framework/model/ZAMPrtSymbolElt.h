// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/model/ZAMPrtContainerOf.h"
#include "framework/model/ZAMPrtEltOf.h"
#include "framework/model/ZAMPrtWithFrame.h"

/// A drawing within the drawing. With a size (both sides finite and positive) its content is shifted by minus its
/// origin and clipped to the rectangle from 0, 0 with that size, which is also the box that it fills; without one the
/// content is drawn as it is.
class ZAM_EXPORT ZAMPrtSymbolElt
    : public ZAMPrtEltOf<ZAMPrtSymbolElt, ZAMPrtWithFrame<ZAMPrtContainerOf<ZAMPrtGraphicPrimitiveElt>>> {
public:
    static constexpr std::string_view kClassName = "ZAMPrtSymbolElt";

    [[nodiscard]] bool HasSize() const { return GetSize().IsPositive(); }
};
