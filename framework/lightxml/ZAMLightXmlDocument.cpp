// SPDX-License-Identifier: MIT
#include "framework/lightxml/ZAMLightXmlDocument.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::size_t kChunkSize = 64UL * 1024;
constexpr std::size_t kRecentNames = 64; // a power of two

} // namespace

char* ZAMLightXmlDocument::Reserve(std::size_t size) {
    if (size > kChunkSize / 4) { // a chunk of its own, so that the current one is not given up for it
        _Chunks.push_back(std::make_unique_for_overwrite<char[]>(size));
        return _Chunks.back().get();
    }
    if (size > _FreeSize) {
        _Chunks.push_back(std::make_unique_for_overwrite<char[]>(kChunkSize));
        _Free = _Chunks.back().get();
        _FreeSize = kChunkSize;
    }
    char* const reserved = _Free;
    _Free += size;
    _FreeSize -= size;
    return reserved;
}

std::string_view ZAMLightXmlDocument::Keep(std::string_view text) {
    if (_Shared != nullptr || text.empty()) {
        return text;
    }
    char* const copy = Reserve(text.size());
    std::memcpy(copy, text.data(), text.size());
    return {copy, text.size()};
}

// A direct-mapped table of the names met last: nearly every name of a document is kept once.
ZAMLightXmlDocument::KeptName ZAMLightXmlDocument::KeepName(std::string_view name) {
    if (_RecentNames.empty()) {
        _RecentNames.resize(kRecentNames);
    }
    const std::size_t slot =
        (name.size() * 31 + static_cast<unsigned char>(name.back()) * 7 + static_cast<unsigned char>(name.front())) &
        (kRecentNames - 1);
    KeptName& recent = _RecentNames[slot];
    if (recent.text != name) {
        recent = {Keep(name), ZAMLightXmlName::BitOf(name)};
    }
    return recent;
}

void ZAMLightXmlDocument::Expect(std::size_t elements, std::size_t attributes) {
    _Nodes.reserve(elements);
    _Attributes.reserve(attributes);
}

void ZAMLightXmlDocument::OpenElement(std::string_view name, std::uint32_t line, std::uint32_t column) {
    const auto number = static_cast<std::uint32_t>(_Nodes.size());
    Node node;
    _Size += name.size();
    node.name = KeepName(name).text;
    node.firstAttribute = static_cast<std::uint32_t>(_Attributes.size());
    node.line = line;
    node.column = column;
    _Nodes.push_back(node);
    if (!_Open.empty()) {
        OpenNode& parent = _Open.back();
        (parent.lastChild == kNone ? _Nodes[parent.node].firstChild : _Nodes[parent.lastChild].nextSibling) = number;
        parent.lastChild = number;
        ++parent.childCount;
    }
    _Open.push_back({number});
}

void ZAMLightXmlDocument::AddAttribute(std::string_view name, std::string_view value) {
    Node& node = _Nodes[_Open.back().node];
    const KeptName kept = KeepName(name);
    node.attributeBits |= kept.bit;
    ++node.attributeCount;
    _Size += name.size() + value.size();
    _Attributes.push_back({kept.text, Keep(value)});
}

// Character data comes in pieces; those that lie behind one another in memory are one run.
bool ZAMLightXmlDocument::ExtendsLastText(const OpenNode& open) const {
    if (open.lastText == kNone || open.lastText + 1 != _Texts.size()) {
        return false;
    }
    const Text& last = _Texts.back();
    return last.childrenBefore == open.childCount && last.data.data() + last.data.size() == _Free;
}

void ZAMLightXmlDocument::AddText(std::string_view data) {
    if (data.empty() || _Open.empty()) {
        return;
    }
    _Size += data.size();
    OpenNode& open = _Open.back();
    if (ExtendsLastText(open) && data.size() <= _FreeSize && data.size() <= kChunkSize / 4) {
        Keep(data);
        std::string_view& last = _Texts.back().data;
        last = {last.data(), last.size() + data.size()};
        return;
    }
    const auto number = static_cast<std::uint32_t>(_Texts.size());
    _Texts.push_back({Keep(data), open.childCount});
    (open.lastText == kNone ? _Nodes[open.node].firstText : _Texts[open.lastText].next) = number;
    open.lastText = number;
}

void ZAMLightXmlDocument::CloseElement() {
    _Open.pop_back();
}
