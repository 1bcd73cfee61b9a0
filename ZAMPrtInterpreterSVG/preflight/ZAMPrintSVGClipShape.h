// SPDX-License-Identifier: MIT
#pragma once

#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightIds.h"

/// Finds out whether clipping paths are upright rectangles, which is the one shape that can always be clipped to.
class ZAMPrintSVGClipShape {
public:
    /// Borrows the ids, for the use elements in clipping paths.
    explicit ZAMPrintSVGClipShape(ZAMPrintSVGPreflightIds& ids) : _Ids(ids) {}

    /// Of a clipPath element, a shape, or a group or use of one.
    [[nodiscard]] bool IsRectangle(const ZAMLightXmlElementItf& element, int depth = 0) const;

private:
    [[nodiscard]] bool IsOnlyChildRectangle(const ZAMLightXmlElementItf& element, int depth) const;

    ZAMPrintSVGPreflightIds& _Ids;
};
