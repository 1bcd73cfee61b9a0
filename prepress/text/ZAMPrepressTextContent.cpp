// SPDX-License-Identifier: MIT
#include "prepress/text/ZAMPrepressTextContent.h"

#include "prepress/document/ZAMPrepressElementNames.h"

#include <algorithm>
#include <limits>

namespace {

constexpr bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}
constexpr bool StartsCharacter(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
}

bool HasText(const ZAMPrepressElement& element) {
    return ZAMPrepressIsTextPart(element.name) || element.Is("a");
}

} // namespace

ZAMPrepressTextContent::ZAMPrepressTextContent(const ZAMPrepressElement& text, bool preserves) {
    AddElement(text, nullptr, preserves);
    if (_SwallowsBlank) {
        DropLastBlank();
    }
    std::erase_if(_Pieces, [](const auto& piece) { return piece.firstCharacter == piece.endCharacter; });
}

bool ZAMPrepressTextContent::Preserves(const ZAMPrepressElement& element, bool preservesAround) {
    if (const auto whiteSpace = element.Find("white-space")) {
        return *whiteSpace == "pre" || *whiteSpace == "pre-wrap" || *whiteSpace == "break-spaces";
    }
    const auto space = element.Find("xml:space");
    return space ? *space == "preserve" : preservesAround;
}

void ZAMPrepressTextContent::AddElement(const ZAMPrepressElement& element, const ZAMPrepressTextSpan* parent,
                                        bool preservesAround) {
    const bool preserves = Preserves(element, preservesAround);
    ZAMPrepressTextSpan& span = _Spans.emplace_back(ZAMPrepressTextSpan{&element, parent, _Spans.size(), GetSize(), 0});
    for (const ZAMPrepressElement* child : element.children) {
        if (child->IsText()) {
            AddText(child->text, span, preserves);
        } else if (HasText(*child)) {
            AddElement(*child, &span, preserves);
        }
    }
    span.endCharacter = GetSize();
}

void ZAMPrepressTextContent::AddText(std::string_view text, const ZAMPrepressTextSpan& span, bool preserves) {
    if (_Text.size() + text.size() > std::numeric_limits<std::uint32_t>::max()) {
        return;
    }
    const std::size_t first = GetSize();
    for (const char c : text) {
        const bool isBlank = IsBlank(c);
        if (isBlank && !preserves && _SwallowsBlank) {
            continue;
        }
        _SwallowsBlank = isBlank && !preserves;
        if (StartsCharacter(c)) {
            _Offsets.push_back(static_cast<std::uint32_t>(_Text.size()));
        }
        _Text += isBlank ? ' ' : c;
    }
    if (GetSize() > first) {
        _Pieces.push_back({&span, first, GetSize()});
    }
}

// A blank at the end of the text goes like one at its start.
void ZAMPrepressTextContent::DropLastBlank() {
    if (_Offsets.empty()) {
        return;
    }
    _Text.pop_back();
    _Offsets.pop_back();
    --_Pieces.back().endCharacter;
    for (ZAMPrepressTextSpan& span : _Spans) {
        span.firstCharacter = std::min(span.firstCharacter, GetSize());
        span.endCharacter = std::min(span.endCharacter, GetSize());
    }
}
