// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/lightxml/ZAMLightXmlElement.h"
#include "prepress/ZAMPrepressTileRenderer.h"

#include <string_view>

/// Prepares documents for the SVG interpreter, whose vocabulary and syntax are smaller than those of the documents that
/// people make: what comes out says the same in words that the interpreter draws rightly.
namespace ZAMPrepress {

/// The prepared document of an XML document with SVG in it (the root is an svg element, or has such children). A
/// document that needs nothing is handed back as it is; what cannot be said better stays as it is. When memory is out
/// the document comes back unchanged. Never throws.
///
/// The path is that of the document's file, which the pictures that it names are looked for beside: so many of them as
/// the thread's ZAMFileAccessPolicy allows.
///
/// What the document reuses is charged to the thread's ZAMAllocationBudget, or to one of the usual size where the
/// thread has none. When that does not suffice, the pages come back empty.
///
/// The renderer, which is borrowed, draws the tiles of patterns made of shapes; without one these are painted with
/// their mean colour.
[[nodiscard]] ZAM_EXPORT ZAMLightXmlElement Prepare(const ZAMLightXmlElement& root,
                                                    ZAMPrepressTileRenderer* renderer = nullptr,
                                                    std::string_view path = {}) noexcept;

} // namespace ZAMPrepress
