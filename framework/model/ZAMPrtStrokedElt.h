// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/model/ZAMPrtGraphicPrimitiveElt.h"
#include "framework/model/ZAMPrtStrokeAttributes.h"

/// Carries the attributes of an element that is an outline without an interior.
class ZAM_EXPORT ZAMPrtStrokedElt : public ZAMPrtGraphicPrimitiveElt {
public:
    [[nodiscard]] const ZAMPrtStrokeAttributes& GetStrokeAttributes() const { return _Stroke; }
    void SetStrokeAttributes(const ZAMPrtStrokeAttributes& stroke) { _Stroke = stroke; }

private:
    ZAMPrtStrokeAttributes _Stroke;
};
