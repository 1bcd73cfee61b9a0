// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMModule.h"

#include <dlfcn.h>
#include <string>

namespace {

void* OpenInModuleFolder(const char* fileName) {
    Dl_info place{};
    if (dladdr(reinterpret_cast<const void*>(&ZAMOpenModule), &place) == 0 || place.dli_fname == nullptr) {
        return nullptr;
    }
    const std::string self = place.dli_fname;
    const std::size_t slash = self.rfind('/');
    if (slash == std::string::npos) {
        return nullptr;
    }
    return dlopen((self.substr(0, slash + 1) + ZAM_MODULE_FOLDER + "/" + fileName).c_str(), RTLD_NOW);
}

} // namespace

void* ZAMOpenModule(const char* fileName, const char* symbol) {
    void* module = OpenInModuleFolder(fileName);
    module = module == nullptr ? dlopen(fileName, RTLD_NOW) : module;
    return module == nullptr ? nullptr : dlsym(module, symbol);
}
