// SPDX-License-Identifier: MIT
// One attribute value through every parser of a micro-syntax; the first byte says how y is flipped.
#include "framework/model/ZAMPrtAllElements.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGPathParser.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGPointsParser.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGTransformParser.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGViewBoxParser.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGColorParser.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const bool flip = (data[0] & 1U) != 0;
    const std::string_view value(reinterpret_cast<const char*>(data) + 1, size - 1);

    const auto group = ZAMNew<ZAMPrtGroupElt>();
    ZAMPrintSVGPathParser path;
    path.SetImageSize(100.0, 50.0);
    path._FlipY = flip;
    path.ParsePathString(group.Get(), value);

    ZAMPrintSVGTransformParser transform;
    transform.SetImageSize(100.0, 50.0);
    transform._FlipY = flip;
    transform.ParseTransformString(value, group.Get());

    const auto polygon = ZAMNew<ZAMPrtPolygonElt>();
    ZAMPrintSVGPointsParser().ParsePointsString(polygon.Get(), value, group.Get());

    double box[4] = {};
    ZAMPrintSVGViewBoxParser::ParseViewBoxString(value, box[0], box[1], box[2], box[3]);

    const auto colours = ZAMNew<ZAMPrtColourTable>();
    ZAMPrintSVGColorParser colour;
    colour.SetColorTable(colours.Get());
    ZAMUnicodeString text(value);
    unsigned int index = 0;
    colour.ParseColorString(text, index);
    colour.ParseColorString(text, index);
    return 0;
}
