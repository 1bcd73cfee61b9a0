// SPDX-License-Identifier: MIT
#include "tools/common/TileRenderer.h"

#include "generators/cairo/ZAMPrintCairoGenerator.h"
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVGInterpreter.h"

#include <sstream>

std::string TileRenderer::Render(const ZAMLightXmlElement& drawing) {
    std::ostringstream png;
    ZAMPrintCairoGenerator generator(ZAMPrintCairoGenerator::Format::Png, png);
    ZAMPrintSVGInterpreter interpreter(&drawing);
    interpreter.SetCurrentPath(_Path.c_str());
    ZAMPrintParameters parameters; // a page of the drawing's size, 90 pixels and as many units to the inch
    return interpreter.Decode(&generator, parameters) == 1 ? png.str() : std::string();
}
