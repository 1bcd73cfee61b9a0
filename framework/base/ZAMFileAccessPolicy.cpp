// SPDX-License-Identifier: MIT
#include "framework/base/ZAMFileAccessPolicy.h"

#include "framework/base/ZAMFilePath.h"

#include <utility>

namespace {

thread_local ZAMFileAccessPolicy* current = nullptr;

// No resolved path is relative.
constexpr const char* kNothing = "nothing";

// The slash at the end keeps "/a/bc" out of "/a/b".
std::string RootOf(std::string_view folder) {
    std::string root = ZAMResolvePath(folder.empty() ? "." : folder);
    if (root.empty()) {
        return kNothing;
    }
    return root.back() == '/' ? root : root + '/';
}

} // namespace

ZAMFileAccessPolicy::ZAMFileAccessPolicy(std::string root)
    : _Before(std::exchange(current, this)), _Root(std::move(root)) {}

ZAMFileAccessPolicy::~ZAMFileAccessPolicy() {
    current = _Before;
}

ZAMFileAccessPolicy ZAMFileAccessPolicy::All() {
    return ZAMFileAccessPolicy("");
}

ZAMFileAccessPolicy ZAMFileAccessPolicy::None() {
    return ZAMFileAccessPolicy(kNothing);
}

ZAMFileAccessPolicy ZAMFileAccessPolicy::OneFolder(std::string_view folder) {
    return ZAMFileAccessPolicy(RootOf(folder));
}

bool ZAMFileAccessPolicy::AllowsAll() noexcept {
    return current == nullptr || current->_Root.empty();
}

bool ZAMFileAccessPolicy::AllowsNone() noexcept {
    return current != nullptr && current->_Root == kNothing;
}

bool ZAMFileAccessPolicy::AllowsResolved(std::string_view path) noexcept {
    return AllowsAll() || path.starts_with(current->_Root);
}
