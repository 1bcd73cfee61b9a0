// SPDX-License-Identifier: MIT
// Lengths and viewBoxes.
#include "fuzz/Value.h"
#include "prepress/geometry/ZAMPrepressLength.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGLengthReader.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGViewBoxParser.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const FuzzedValue value(data, size);
    const ZAMPrintSVGLengthReader reader(100.0, 50.0, (value.choice & 1U) != 0);
    double length = 0.0;
    reader.GetLength(value.text, length);
    reader.GetHorLength(value.text, length);
    reader.GetYCoordinate(value.text, length);
    ZAMPrintSVGLengthReader::GetNumber(value.text, length);
    double box[4] = {};
    ZAMPrintSVGViewBoxParser::ParseViewBoxString(value.text, box[0], box[1], box[2], box[3]);
    static_cast<void>(ZAMPrepressReadLength(value.text));
    static_cast<void>(ZAMPrepressReadViewBox(value.text));
    return 0;
}
