// SPDX-License-Identifier: MIT
// Lists of transform functions.
#include "framework/model/ZAMPrtAllElements.h"
#include "fuzz/Value.h"
#include "prepress/geometry/ZAMPrepressTransform.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGTransformParser.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const FuzzedValue value(data, size);
    const auto group = ZAMNew<ZAMPrtGroupElt>();
    ZAMPrintSVGTransformParser parser;
    parser.SetImageSize(100.0, 50.0);
    parser._FlipY = (value.choice & 1U) != 0;
    parser.ParseTransformString(value.text, group.Get());
    static_cast<void>(ZAMPrepressReadTransform(value.text));
    return 0;
}
