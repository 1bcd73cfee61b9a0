// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMImagesModule.h"

#include "framework/visualisation/ZAMModule.h"

namespace {

const ZAMPrintImagesTable* OpenTable() {
    void* entry = ZAMOpenModule("libZAMPrintImages.so", "ZAMPrintImagesGetTable");
    return entry == nullptr ? nullptr : reinterpret_cast<ZAMPrintImagesGetTableFunction*>(entry)();
}

} // namespace

const ZAMPrintImagesTable* ZAMOpenImagesModule() {
    static const ZAMPrintImagesTable* const table = OpenTable();
    return table;
}
