// SPDX-License-Identifier: MIT
#include "prepress/document/ZAMPrepressTree.h"

#include "framework/base/ZAMAllocationBudget.h"
#include "framework/lightxml/ZAMLightXmlDocument.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

namespace {

void Write(const ZAMPrepressElement& element, ZAMLightXmlDocument& document) {
    if (element.IsText()) {
        document.AddText(element.text);
        return;
    }
    document.OpenElement(element.name, element.line, element.column);
    for (const ZAMPrepressElement::Attribute& attribute : element.attributes) {
        document.AddAttribute(attribute.name, attribute.value);
    }
    for (const ZAMPrepressElement* child : element.children) {
        Write(*child, document);
    }
    document.CloseElement();
}

// The texts are shared, but whoever reads the document reads those of each copy.
std::size_t CostOf(const ZAMPrepressElement& element) {
    std::size_t bytes = element.text.size();
    for (const ZAMPrepressElement::Attribute& attribute : element.attributes) {
        bytes += attribute.value.size();
    }
    return 1 + bytes / ZAMLimits::kBytesForOne;
}

} // namespace

ZAMPrepressTree::ZAMPrepressTree(const ZAMLightXmlElementItf& root) {
    _Root = &Adopt(root);
}

ZAMPrepressElement& ZAMPrepressTree::Adopt(const ZAMLightXmlElementItf& element) {
    _Texts->KeepDocumentOf(element);
    return Read(element);
}

// Elements nest no deeper than the XML parser lets them.
ZAMPrepressElement& ZAMPrepressTree::Read(const ZAMLightXmlElementItf& element) {
    ZAMPrepressElement& copy = NewElement(element.GetName());
    copy.line = element.GetLine();
    copy.column = element.GetColumn();
    copy.attributes.reserve(element.GetAttributeCount());
    for (std::size_t i = 0; i < element.GetAttributeCount(); ++i) {
        const auto attribute = element.GetAttributeAt(i);
        copy.attributes.push_back({attribute.name, attribute.value});
    }
    ZAMLightXmlPosition text = element.GetFirstTextPosition();
    ZAMLightXmlElementItf::TextRun run = element.GetNextText(text);
    const auto addRuns = [&](std::size_t childrenBefore) {
        while (!run.text.empty() && run.childrenBefore <= childrenBefore) {
            ZAMPrepressElement& piece = NewElement({});
            piece.text = run.text;
            Append(copy, piece);
            run = element.GetNextText(text);
        }
    };
    std::size_t children = 0;
    for (ZAMLightXmlPosition position = element.GetFirstChildPosition(); position != 0;) {
        addRuns(children++);
        Append(copy, Read(element.GetNextChild(position)));
    }
    addRuns(children);
    return copy;
}

ZAMPrepressElement& ZAMPrepressTree::NewElement(std::string_view name) {
    ZAMPrepressElement& element = _Elements.emplace_back(&_Memory);
    element.name = name;
    return element;
}

ZAMPrepressElement* ZAMPrepressTree::Copy(const ZAMPrepressElement& element) {
    if (!ZAMAllocationBudget::Spend(CostOf(element))) {
        return nullptr;
    }
    ZAMPrepressElement& copy = NewElement(element.name);
    copy.text = element.text;
    copy.attributes = element.attributes;
    copy.line = element.line;
    copy.column = element.column;
    for (const ZAMPrepressElement* child : element.children) {
        if (ZAMPrepressElement* const part = Copy(*child)) {
            Append(copy, *part);
        }
    }
    return &copy;
}

std::vector<ZAMPrepressElement*> ZAMPrepressTree::GetDrawings() {
    static constexpr std::string_view kSvg = "svg";
    if (_Root->Is(kSvg)) {
        return {_Root};
    }
    std::vector<ZAMPrepressElement*> drawings;
    std::ranges::copy_if(_Root->children, std::back_inserter(drawings),
                         [](const ZAMPrepressElement* child) { return child->Is(kSvg); });
    return drawings;
}

void ZAMPrepressTree::Append(ZAMPrepressElement& parent, ZAMPrepressElement& child) {
    parent.children.push_back(&child);
    child.parent = &parent;
}

ZAMLightXmlElement ZAMPrepressTree::ToDocument(const ZAMPrepressElement& root) const {
    const auto document = std::make_shared<ZAMLightXmlDocument>(_Texts);
    if (&root == _Root) {
        constexpr std::size_t kAttributes = 6; // of an element, on the average of drawings
        document->Expect(_Elements.size(), _Elements.size() * kAttributes);
    }
    Write(root, *document);
    return {document, 0};
}
