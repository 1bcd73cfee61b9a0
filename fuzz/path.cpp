// SPDX-License-Identifier: MIT
// Path data, of a filled path and of a line with markers.
#include "framework/model/ZAMPrtAllElements.h"
#include "fuzz/Value.h"
#include "prepress/geometry/ZAMPrepressPath.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGPathParser.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const FuzzedValue value(data, size);
    const auto group = ZAMNew<ZAMPrtGroupElt>();
    ZAMPrintSVGPathParser path;
    path.SetImageSize(100.0, 50.0);
    path._FlipY = (value.choice & 1U) != 0;
    const auto style = (value.choice & 2U) != 0 ? ZAMPrtDrawStyle::Stroke : ZAMPrtDrawStyle::StrokeAndFill;
    path.SetPaintAttributes(style, {}, {});
    path.ParsePathString(group.Get(), value.text);
    const ZAMPrepressPath prepared = ZAMPrepressPath::Parse(value.text);
    static_cast<void>(prepared.GetBox());
    static_cast<void>(prepared.ToData());
    return 0;
}
