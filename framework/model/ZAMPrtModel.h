// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMBaseUnknown.h"
#include "framework/base/ZAMExport.h"
#include "framework/base/ZAMRef.h"
#include "framework/model/ZAMPrtImageElt.h"

#include <span>
#include <vector>

/// A print model: its image elements in the order of the pages.
class ZAM_EXPORT ZAMPrtModel : public ZAMBaseUnknown {
public:
    /// Appends an image and takes a reference; ignores null.
    void AddImage(ZAMPrtImageElt* image) {
        if (image != nullptr) {
            _Images.push_back(ZAMRef<ZAMPrtImageElt>::Share(image));
        }
    }
    /// Valid until an image is added.
    [[nodiscard]] std::span<const ZAMRef<ZAMPrtImageElt>> GetImages() const { return _Images; }

private:
    std::vector<ZAMRef<ZAMPrtImageElt>> _Images;
};
