// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/model/ZAMPrtFillAttributes.h"
#include "framework/model/ZAMPrtStrokedElt.h"

/// Carries the attributes of an element with an outline and an interior.
class ZAM_EXPORT ZAMPrtPaintedElt : public ZAMPrtStrokedElt {
public:
    [[nodiscard]] ZAMPrtDrawStyle GetDrawStyle() const { return _DrawStyle; }
    void SetDrawStyle(ZAMPrtDrawStyle drawStyle) { _DrawStyle = drawStyle; }
    [[nodiscard]] const ZAMPrtFillAttributes& GetFillAttributes() const { return _Fill; }
    void SetFillAttributes(const ZAMPrtFillAttributes& fill) { _Fill = fill; }

private:
    ZAMPrtFillAttributes _Fill;
    ZAMPrtDrawStyle _DrawStyle = ZAMPrtDrawStyle::Stroke;
};
