// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/model/ZAMPrtContainerOf.h"
#include "framework/model/ZAMPrtEltOf.h"
#include "framework/model/ZAMPrtGroupAttributes.h"

/// A group of elements, perhaps a link.
class ZAM_EXPORT ZAMPrtGroupElt : public ZAMPrtEltOf<ZAMPrtGroupElt, ZAMPrtContainerOf<ZAMPrtGraphicPrimitiveElt>> {
public:
    static constexpr std::string_view kClassName = "ZAMPrtGroupElt";

    [[nodiscard]] const ZAMPrtGroupAttributes& GetGroupAttributes() const { return _Attributes; }
    void SetGroupAttributes(const ZAMPrtGroupAttributes& attributes) { _Attributes = attributes; }

    /// Tells that the pieces in the group form outlines, in the sense of ZAMPrtClosedFigureElt: pieces with the same
    /// stroke that follow one another are stroked as one path, with joins and one dash run.
    void SetContinuousOutline(bool continuous) { _ContinuousOutline = continuous; }
    [[nodiscard]] bool IsContinuousOutline() const { return _ContinuousOutline; }

private:
    ZAMPrtGroupAttributes _Attributes;
    bool _ContinuousOutline = false;
};
