// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/model/ZAMPrtContainerOf.h"
#include "framework/model/ZAMPrtEltOf.h"
#include "framework/model/ZAMPrtWithFrame.h"

/// What fills are made of: a tile with an origin (lower left) and a size, and its content. A pattern is never drawn
/// itself.
class ZAM_EXPORT ZAMPrtPatternElt
    : public ZAMPrtEltOf<ZAMPrtPatternElt, ZAMPrtWithFrame<ZAMPrtContainerOf<ZAMPrtGraphicPrimitiveElt>>> {
public:
    static constexpr std::string_view kClassName = "ZAMPrtPatternElt";
};
