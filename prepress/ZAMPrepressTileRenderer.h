// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/lightxml/ZAMLightXmlElement.h"

#include <string>

/// Draws small drawings for the preparation of a document: the tiles of its patterns. The host provides it, for the
/// preparation knows neither an interpreter nor an output.
class ZAM_EXPORT ZAMPrepressTileRenderer {
public:
    ZAMPrepressTileRenderer() = default;
    ZAMPrepressTileRenderer(const ZAMPrepressTileRenderer&) = delete;
    ZAMPrepressTileRenderer& operator=(const ZAMPrepressTileRenderer&) = delete;
    virtual ~ZAMPrepressTileRenderer();

    /// The drawing as a PNG file (ISO 15948) on a transparent ground, one pixel to each user unit. The drawing is an
    /// svg element whose width and height are whole numbers; it is prepared. Empty when it cannot be drawn.
    virtual std::string Render(const ZAMLightXmlElement& drawing) = 0;
};
