// SPDX-License-Identifier: MIT
// The whole way of one document: bytes to model, model to JSON, PDF and PNG in memory. Whatever the bytes are, the
// outputs must be drawn without an error.
#include "framework/base/ZAMAllocationBudget.h"
#include "framework/base/ZAMFileAccessPolicy.h"
#include "framework/lightxml/ZAMLightXmlInputStreamBuffer.h"
#include "framework/lightxml/ZAMLightXmlParser.h"
#include "framework/model/ZAMPrtModelJson.h"
#include "framework/print/ZAMPrintModelRender.h"
#include "generators/cairo/ZAMPrintCairoGenerator.h"
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVG2Interpreter.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>

namespace {

// So few that an input that doubles itself is still quick.
constexpr std::size_t kReusedElements = 5000;

void Draw(const ZAMPrtModel& model, ZAMPrintCairoGenerator::Format format) {
    constexpr double kSmallPage = 200.0; // points: the time is to be spent on the document
    ZAMPrintParameters parameters;
    parameters.pageWidth = kSmallPage;
    parameters.pageHeight = kSmallPage;
    std::ostringstream out;
    ZAMPrintCairoGenerator generator(format, out);
    if (ZAMPrintModelRender(&model, &generator, parameters).Draw() != 1 || !generator.GetError().empty()) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ZAMLightXmlInputStreamBuffer stream(data, static_cast<int>(size));
    ZAMLightXmlElement root;
    ZAMLightXmlParser().Parse(stream, root);
    const auto model = ZAMNew<ZAMPrtModel>();
    ZAMPrintSVGModelDriver driver(model.Get());
    const ZAMFileAccessPolicy policy = ZAMFileAccessPolicy::None();
    const ZAMAllocationBudget budget(kReusedElements);
    ZAMPrintSVG2Interpreter(&root).Decode(&driver);
    std::ostringstream json;
    ZAMPrtWriteModelAsJson(*model, json);
    Draw(*model, ZAMPrintCairoGenerator::Format::Pdf);
    Draw(*model, ZAMPrintCairoGenerator::Format::Png);
    return 0;
}
