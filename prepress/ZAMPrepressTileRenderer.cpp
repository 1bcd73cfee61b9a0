// SPDX-License-Identifier: MIT
#include "prepress/ZAMPrepressTileRenderer.h"

ZAMPrepressTileRenderer::~ZAMPrepressTileRenderer() = default;
