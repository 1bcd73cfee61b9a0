// SPDX-License-Identifier: MIT
// The preparation of one document, then what the interpreter makes of it. Time and memory are what is watched: few
// bytes must not become many elements.
#include "framework/base/ZAMAllocationBudget.h"
#include "framework/base/ZAMFileAccessPolicy.h"
#include "framework/lightxml/ZAMLightXmlInputStreamBuffer.h"
#include "framework/lightxml/ZAMLightXmlParser.h"
#include "prepress/ZAMPrepress.h"
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVG2Interpreter.h"

#include <cstddef>
#include <cstdint>

namespace {

// So few that an input that doubles itself is still quick.
constexpr std::size_t kReusedElements = 5000;

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ZAMLightXmlInputStreamBuffer stream(data, static_cast<int>(size));
    ZAMLightXmlElement root;
    ZAMLightXmlParser().Parse(stream, root);
    const ZAMFileAccessPolicy policy = ZAMFileAccessPolicy::None();
    const ZAMAllocationBudget budget(kReusedElements);
    const ZAMLightXmlElement prepared = ZAMPrepress::Prepare(root);
    const auto model = ZAMNew<ZAMPrtModel>();
    if (model) {
        ZAMPrintSVGModelDriver driver(model.Get());
        ZAMPrintSVG2Interpreter(&prepared).Decode(&driver);
    }
    return 0;
}
