// SPDX-License-Identifier: MIT
// The whole way, from bytes to PDF in memory.
#include "fuzz/Documents.h"
#include "fuzz/Drawing.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const FuzzedDocument document(data, size);
    FuzzedTiles tiles;
    DrawFuzzed(ZAMPrepress::Prepare(document.GetRoot(), &tiles), ZAMPrintCairoGenerator::Format::Pdf);
    return 0;
}
