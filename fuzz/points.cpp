// SPDX-License-Identifier: MIT
// The points of polygons and polylines.
#include "framework/model/ZAMPrtAllElements.h"
#include "fuzz/Value.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGPointsParser.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const FuzzedValue value(data, size);
    const auto group = ZAMNew<ZAMPrtGroupElt>();
    const auto polygon = ZAMNew<ZAMPrtPolygonElt>();
    ZAMPrintSVGPointsParser parser;
    parser.SetImageSize(100.0, 50.0);
    parser._FlipY = (value.choice & 1U) != 0;
    parser.ParsePointsString(polygon.Get(), value.text, group.Get());
    return 0;
}
