// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/lightxml/ZAMLightXmlElementItf.h"

/// The natural size of a document in user units, 90 to the inch: the `width` and `height` of its root `svg` element,
/// units applied, when they are positive and no percentages; one of them and a viewBox give the other by the viewBox's
/// aspect. 1 when both were found; -1, and both as they were, when the size is that of the decoded model.
ZAM_EXPORT int ZAMPrintSVGGetDocumentSize(const ZAMLightXmlElementItf& root, double& width, double& height);
