// SPDX-License-Identifier: MIT
#pragma once

#include "framework/images/ZAMPrintImagesTable.h"

/// The images module, opened with the first call (ZAMModule.h). Null when there is none; then there are no PNG and JPEG
/// pictures.
const ZAMPrintImagesTable* ZAMOpenImagesModule();
