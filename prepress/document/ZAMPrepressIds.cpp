// SPDX-License-Identifier: MIT
#include "prepress/document/ZAMPrepressIds.h"

#include <string>

namespace {

constexpr std::string_view kBlanks = " \t\r\n\f";

std::string_view Trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(kBlanks);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string_view Unquoted(std::string_view text) {
    const bool isQuoted =
        text.size() >= 2 && (text.front() == '"' || text.front() == '\'') && text.back() == text.front();
    return isQuoted ? text.substr(1, text.size() - 2) : text;
}

std::string_view IdOfLink(std::string_view link) {
    const std::string_view trimmed = Trimmed(link);
    return trimmed.starts_with('#') ? trimmed.substr(1) : std::string_view();
}

} // namespace

ZAMPrepressIds::ZAMPrepressIds(ZAMPrepressTree& tree) : _Tree(tree) {
    Add(tree.GetRoot());
}

void ZAMPrepressIds::Add(ZAMPrepressElement& element) {
    const std::string_view id = element.Get("id");
    if (!id.empty()) {
        _Elements.try_emplace(id, &element);
    }
    for (ZAMPrepressElement* child : element.children) {
        Add(*child);
    }
}

ZAMPrepressElement* ZAMPrepressIds::Find(std::string_view id) const {
    const auto found = _Elements.find(id);
    return found == _Elements.end() ? nullptr : found->second;
}

ZAMPrepressElement* ZAMPrepressIds::FindLink(std::string_view link) const {
    return Find(IdOfLink(link));
}

ZAMPrepressElement* ZAMPrepressIds::FindUrl(std::string_view value) const {
    return Find(IdOfUrl(value));
}

std::string_view ZAMPrepressIds::IdOfUrl(std::string_view value) {
    constexpr std::string_view kUrl = "url(";
    const std::string_view text = Trimmed(value);
    const auto end = text.find(')');
    if (!text.starts_with(kUrl) || end == std::string_view::npos) {
        return {};
    }
    return IdOfLink(Unquoted(Trimmed(text.substr(kUrl.size(), end - kUrl.size()))));
}

std::string_view ZAMPrepressIds::NewId(std::string_view stem) {
    for (;;) {
        std::string id = std::string(stem) + std::to_string(++_NewIds);
        if (!_Elements.contains(id)) {
            const std::string_view kept = _Tree.Keep(std::move(id));
            _Elements.emplace(kept, nullptr);
            return kept;
        }
    }
}
