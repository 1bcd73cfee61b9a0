// SPDX-License-Identifier: MIT
// A document as it stands through the interpreter, then as JSON and as PostScript. (Cairo loses a few bytes with some
// pictures in SVG, which the leak checker would find again and again.)
#include "framework/model/ZAMPrtModelJson.h"
#include "fuzz/Documents.h"
#include "fuzz/Drawing.h"
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVG2Interpreter.h"

#include <cstddef>
#include <cstdint>
#include <sstream>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const FuzzedDocument document(data, size);
    if (const auto model = ZAMNew<ZAMPrtModel>()) {
        ZAMPrintSVGModelDriver driver(model.Get());
        ZAMPrintSVG2Interpreter(&document.GetRoot()).Decode(&driver);
        std::ostringstream json;
        ZAMPrtWriteModelAsJson(*model, json);
    }
    DrawFuzzed(document.GetRoot(), ZAMPrintCairoGenerator::Format::Ps);
    return 0;
}
