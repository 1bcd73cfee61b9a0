// SPDX-License-Identifier: MIT
#pragma once

#include "framework/print/ZAMPrintGenerator.h"

/// A clip that ends with its scope, so that clips stay balanced.
class ZAMPrintClipScope {
public:
    ZAMPrintClipScope(ZAMPrintGenerator& generator, const ZAMMathBox2D& area, const ZAMMathAffine2D& toPage)
        : _Generator(generator) {
        _Generator.PushClip(area, toPage);
    }
    ZAMPrintClipScope(const ZAMPrintClipScope&) = delete;
    ZAMPrintClipScope& operator=(const ZAMPrintClipScope&) = delete;
    ~ZAMPrintClipScope() { _Generator.PopClip(); }

private:
    ZAMPrintGenerator& _Generator;
};
