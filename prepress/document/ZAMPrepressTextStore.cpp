// SPDX-License-Identifier: MIT
#include "prepress/document/ZAMPrepressTextStore.h"

#include <cstring>
#include <utility>

namespace {

// Above this it is cheaper to move a string than to copy it.
constexpr std::size_t kLongText = 512;

} // namespace

std::string_view ZAMPrepressTextStore::Keep(std::string_view text) {
    if (text.empty()) {
        return {};
    }
    char* const copy = static_cast<char*>(_Short.allocate(text.size(), 1));
    std::memcpy(copy, text.data(), text.size());
    return {copy, text.size()};
}

std::string_view ZAMPrepressTextStore::Keep(std::string&& text) {
    return text.size() < kLongText ? Keep(std::string_view(text)) : _Long.emplace_back(std::move(text));
}
