// SPDX-License-Identifier: MIT
#include "framework/lightxml/ZAMLightXmlElement.h"

#include "framework/lightxml/ZAMLightXmlDocument.h"

void ZAMLightXmlElement::Assign(const ZAMLightXmlElementItf& other) {
    if (const auto* handle = dynamic_cast<const ZAMLightXmlElement*>(&other)) {
        *this = *handle;
    }
}

std::string_view ZAMLightXmlElement::GetName() const {
    return _Document ? _Document->GetNode(_Node).name : std::string_view();
}

std::string_view ZAMLightXmlElement::GetAttribute(const ZAMLightXmlName& name) const {
    if (!_Document) {
        return {};
    }
    const auto& node = _Document->GetNode(_Node);
    if ((node.attributeBits & name.GetBit()) == 0) {
        return {};
    }
    for (const auto& attribute : _Document->GetAttributes(node)) {
        if (attribute.name == name.GetText()) {
            return attribute.value;
        }
    }
    return {};
}

std::uint64_t ZAMLightXmlElement::GetAttributeBits() const {
    return _Document ? _Document->GetNode(_Node).attributeBits : 0;
}

std::size_t ZAMLightXmlElement::GetAttributeCount() const {
    return _Document ? _Document->GetNode(_Node).attributeCount : 0;
}

ZAMLightXmlElementItf::Attribute ZAMLightXmlElement::GetAttributeAt(std::size_t index) const {
    const auto& attribute = _Document->GetAttributes(_Document->GetNode(_Node))[index];
    return {attribute.name, attribute.value};
}

// A position is the number of the child's node; the root is no child, so 0 is free to mean none.
ZAMLightXmlPosition ZAMLightXmlElement::GetFirstChildPosition() const {
    const std::uint32_t first = _Document ? _Document->GetNode(_Node).firstChild : ZAMLightXmlDocument::kNone;
    return first == ZAMLightXmlDocument::kNone ? 0 : first;
}

ZAMLightXmlElement ZAMLightXmlElement::GetNextChild(ZAMLightXmlPosition& position) const {
    if (!_Document || position == 0) {
        return {};
    }
    const auto child = static_cast<std::uint32_t>(position);
    const std::uint32_t next = _Document->GetNode(child).nextSibling;
    position = next == ZAMLightXmlDocument::kNone ? 0 : next;
    return {_Document, child};
}

ZAMUnicodeString ZAMLightXmlElement::GetTextContent() const {
    std::string content;
    std::uint32_t text = _Document ? _Document->GetNode(_Node).firstText : ZAMLightXmlDocument::kNone;
    while (text != ZAMLightXmlDocument::kNone) {
        content += _Document->GetText(text).data;
        text = _Document->GetText(text).next;
    }
    return ZAMUnicodeString(std::string_view(content));
}

// The position of a run is its number, counted from 1.
ZAMLightXmlPosition ZAMLightXmlElement::GetFirstTextPosition() const {
    const std::uint32_t first = _Document ? _Document->GetNode(_Node).firstText : ZAMLightXmlDocument::kNone;
    return first == ZAMLightXmlDocument::kNone ? 0 : ZAMLightXmlPosition{first} + 1;
}

ZAMLightXmlElementItf::TextRun ZAMLightXmlElement::GetNextText(ZAMLightXmlPosition& position) const {
    if (!_Document || position == 0) {
        return {};
    }
    const auto& text = _Document->GetText(static_cast<std::uint32_t>(position - 1));
    position = text.next == ZAMLightXmlDocument::kNone ? 0 : ZAMLightXmlPosition{text.next} + 1;
    return {text.data, text.childrenBefore};
}

std::size_t ZAMLightXmlElement::GetDocumentSize() const {
    return _Document ? _Document->GetSize() : 0;
}

std::uint32_t ZAMLightXmlElement::GetLine() const {
    return _Document ? _Document->GetNode(_Node).line : 0;
}

std::uint32_t ZAMLightXmlElement::GetColumn() const {
    return _Document ? _Document->GetNode(_Node).column : 0;
}
