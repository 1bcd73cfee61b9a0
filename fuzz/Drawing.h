// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMAllocationBudget.h"
#include "generators/cairo/ZAMPrintCairoGenerator.h"
#include "prepress/ZAMPrepress.h"
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVGInterpreter.h"

#include <cstdlib>
#include <sstream>
#include <string>

/// Draws a document on a small page, so that the time is spent on the document, and ends the program when that is an
/// error: whatever a document is, a page comes of it, unless the thread's budget is spent before.
inline std::string DrawFuzzed(const ZAMLightXmlElement& root, ZAMPrintCairoGenerator::Format format) {
    if (ZAMAllocationBudget::IsCurrentSpent()) {
        return {};
    }
    constexpr double kSmallPage = 200.0; // points
    ZAMPrintParameters parameters;
    parameters.pageWidth = kSmallPage;
    parameters.pageHeight = kSmallPage;
    std::ostringstream out;
    ZAMPrintCairoGenerator generator(format, out);
    if (ZAMPrintSVGInterpreter(&root).Decode(&generator, parameters) != 1 || !generator.GetError().empty()) {
        std::abort();
    }
    return out.str();
}

/// Draws the tiles of patterns.
class FuzzedTiles : public ZAMPrepressTileRenderer {
public:
    std::string Render(const ZAMLightXmlElement& drawing) override {
        std::ostringstream png;
        ZAMPrintCairoGenerator generator(ZAMPrintCairoGenerator::Format::Png, png);
        ZAMPrintParameters parameters;
        return ZAMPrintSVGInterpreter(&drawing).Decode(&generator, parameters) == 1 ? png.str() : std::string();
    }
};
