// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMFontsModule.h"

#include <dlfcn.h>
#include <string>

namespace {

constexpr const char* kFileName = "libZAMPrintFonts.so";

void* OpenBeside() {
    Dl_info place{};
    if (dladdr(reinterpret_cast<const void*>(&ZAMOpenFontsModule), &place) == 0 || place.dli_fname == nullptr) {
        return nullptr;
    }
    const std::string self = place.dli_fname;
    const std::size_t slash = self.rfind('/');
    return slash == std::string::npos ? nullptr : dlopen((self.substr(0, slash + 1) + kFileName).c_str(), RTLD_NOW);
}

// Never closed: the text libraries keep state that outlives their users.
const ZAMPrintFontsTable* OpenModule() {
    void* module = OpenBeside();
    module = module == nullptr ? dlopen(kFileName, RTLD_NOW) : module;
    void* entry = module == nullptr ? nullptr : dlsym(module, "ZAMPrintFontsGetTable");
    return entry == nullptr ? nullptr : reinterpret_cast<ZAMPrintFontsGetTableFunction*>(entry)();
}

} // namespace

const ZAMPrintFontsTable* ZAMOpenFontsModule() {
    static const ZAMPrintFontsTable* const table = OpenModule();
    return table;
}
