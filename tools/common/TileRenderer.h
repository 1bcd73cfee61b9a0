// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/ZAMPrepressTileRenderer.h"

/// Draws the tiles of patterns as documents themselves are drawn.
class TileRenderer : public ZAMPrepressTileRenderer {
public:
    /// `path` is that of the document, where its relative references start from.
    explicit TileRenderer(std::string path) : _Path(std::move(path)) {}

    std::string Render(const ZAMLightXmlElement& drawing) override;

private:
    std::string _Path;
};
