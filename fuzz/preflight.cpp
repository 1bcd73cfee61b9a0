// SPDX-License-Identifier: MIT
// What is said of a document before it is printed.
#include "fuzz/Documents.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflight.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const FuzzedDocument document(data, size);
    ZAMPrintSVGPreflight(ZAMPrintSVGPreflight::Mode::AsItStands).Check(document.GetRoot());
    ZAMPrintSVGPreflight(ZAMPrintSVGPreflight::Mode::Prepared).Check(document.GetRoot());
    return 0;
}
