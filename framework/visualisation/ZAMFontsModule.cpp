// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMFontsModule.h"

#include "framework/visualisation/ZAMModule.h"

namespace {

const ZAMPrintFontsTable* OpenTable() {
    void* entry = ZAMOpenModule("libZAMPrintFonts.so", "ZAMPrintFontsGetTable");
    return entry == nullptr ? nullptr : reinterpret_cast<ZAMPrintFontsGetTableFunction*>(entry)();
}

} // namespace

const ZAMPrintFontsTable* ZAMOpenFontsModule() {
    static const ZAMPrintFontsTable* const table = OpenTable();
    return table;
}
