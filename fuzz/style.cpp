// SPDX-License-Identifier: MIT
// A style attribute on a shape and on a text, as it stands and prepared; a style sheet.
#include "framework/lightxml/ZAMLightXmlDocument.h"
#include "framework/lightxml/ZAMLightXmlElement.h"
#include "fuzz/Documents.h"
#include "fuzz/Value.h"
#include "prepress/ZAMPrepress.h"
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVG2Interpreter.h"

#include <cstddef>
#include <cstdint>
#include <memory>

namespace {

// Two elements in a drawing, with the attribute if there is a value for it.
void AddContent(ZAMLightXmlDocument& document, std::string_view style) {
    for (const std::string_view name : {"rect", "text"}) {
        document.OpenElement(name, 1, 1);
        document.AddAttribute("width", "9");
        document.AddAttribute("height", "9");
        if (!style.empty()) {
            document.AddAttribute("style", style);
        }
        document.AddText("text");
        document.CloseElement();
    }
}

std::shared_ptr<ZAMLightXmlDocument> DrawWithStyle(std::string_view style) {
    auto document = std::make_shared<ZAMLightXmlDocument>();
    document->OpenElement("svg", 1, 1);
    AddContent(*document, style);
    document->CloseElement();
    return document;
}

std::shared_ptr<ZAMLightXmlDocument> DrawWithSheet(std::string_view sheet) {
    auto document = std::make_shared<ZAMLightXmlDocument>();
    document->OpenElement("svg", 1, 1);
    document->OpenElement("style", 1, 1);
    document->AddText(sheet);
    document->CloseElement();
    AddContent(*document, {});
    document->CloseElement();
    return document;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const FuzzedValue value(data, size);
    const FuzzedDocument surroundings(nullptr, 0);
    const ZAMLightXmlElement root((value.choice & 1U) != 0 ? DrawWithStyle(value.text) : DrawWithSheet(value.text), 0);
    for (const ZAMLightXmlElement& drawing : {root, ZAMPrepress::Prepare(root)}) {
        if (const auto model = ZAMNew<ZAMPrtModel>()) {
            ZAMPrintSVGModelDriver driver(model.Get());
            ZAMPrintSVG2Interpreter(&drawing).Decode(&driver);
        }
    }
    return 0;
}
