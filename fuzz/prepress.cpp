// SPDX-License-Identifier: MIT
// The preparation of a document. Time and memory are what is watched: few bytes must not become many elements.
#include "fuzz/Documents.h"
#include "prepress/ZAMPrepress.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const FuzzedDocument document(data, size);
    static_cast<void>(ZAMPrepress::Prepare(document.GetRoot()));
    return 0;
}
