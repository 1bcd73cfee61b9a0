// SPDX-License-Identifier: MIT
#include "tests/whole/WholeWay.h"

#include "framework/lightxml/ZAMLightXmlInputStreamBuffer.h"
#include "framework/lightxml/ZAMLightXmlParser.h"
#include "framework/model/ZAMPrtModelJson.h"
#include "framework/print/ZAMPrintModelBoundingBoxComputer.h"
#include "prepress/ZAMPrepress.h"
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVG2Interpreter.h"
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVGInterpreter.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflight.h"

#include <fstream>
#include <sstream>

namespace {

int Parse(std::string_view document, ZAMLightXmlElement& root) {
    const auto* const bytes = reinterpret_cast<const unsigned char*>(document.data());
    return ZAMLightXmlParser().Parse(ZAMLightXmlInputStreamBuffer(bytes, static_cast<int>(document.size())), root);
}

class Tiles : public ZAMPrepressTileRenderer {
public:
    std::string Render(const ZAMLightXmlElement& drawing) override {
        std::ostringstream png;
        ZAMPrintCairoGenerator generator(ZAMPrintCairoGenerator::Format::Png, png);
        return ZAMPrintSVGInterpreter(&drawing).Decode(&generator, {}) == 1 ? png.str() : std::string();
    }
};

// Memory streams are silent when memory is out.
class Output : public std::stringbuf {
public:
    [[nodiscard]] std::string Get() const { return str(); }
};

} // namespace

WholeWay::Outcome WholeWay::Draw(std::string_view document, Format format) {
    Outcome outcome;
    ZAMLightXmlElement root;
    outcome.parsed = Parse(document, root);
    Tiles tiles;
    const ZAMLightXmlElement prepared = ZAMPrepress::Prepare(root, &tiles);
    Output output;
    std::ostream stream(&output);
    ZAMPrintCairoGenerator generator(format, stream);
    const ZAMPrintParameters parameters;
    outcome.drawn = ZAMPrintSVGInterpreter(&prepared).Decode(&generator, parameters);
    outcome.hasGeneratorFailed = !generator.GetError().empty();
    outcome.output = output.Get();
    return outcome;
}

std::string WholeWay::Model(std::string_view document) {
    ZAMLightXmlElement root;
    Parse(document, root);
    ZAMPrintSVGPreflight(ZAMPrintSVGPreflight::Mode::Prepared).Check(root);
    const ZAMLightXmlElement prepared = ZAMPrepress::Prepare(root);
    const auto model = ZAMNew<ZAMPrtModel>();
    if (!model) {
        return {};
    }
    ZAMPrintSVGModelDriver driver(model.Get());
    ZAMPrintSVG2Interpreter(&prepared).Decode(&driver);
    for (const auto& image : model->GetImages()) {
        static_cast<void>(image->Duplicate());
    }
    std::ostringstream json;
    ZAMPrtWriteModelAsJson(*model, json);
    return json.str();
}

std::string WholeWay::EveryElement() {
    std::ostringstream document;
    document << std::ifstream(ZAM_SOURCE_DIR "/tests/whole/every-element.svg").rdbuf();
    return document.str();
}
