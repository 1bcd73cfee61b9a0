// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/lightxml/ZAMLightXmlElementItf.h"

#include <memory>

class ZAMLightXmlDocument;

/// An element: a cheap handle on a document that all its elements keep alive together. Copying one copies no tree. A
/// default one is empty: no name, no attributes, no children.
class ZAM_EXPORT ZAMLightXmlElement : public ZAMLightXmlElementItf {
public:
    ZAMLightXmlElement() = default;
    /// The element with number `node` of `document`.
    ZAMLightXmlElement(std::shared_ptr<const ZAMLightXmlDocument> document, std::uint32_t node)
        : _Document(std::move(document)), _Node(node) {}

    /// Becomes a handle on the same element as `other`.
    void Assign(const ZAMLightXmlElementItf& other);

    [[nodiscard]] std::string_view GetName() const override;
    [[nodiscard]] std::string_view GetAttribute(const ZAMLightXmlName& name) const override;
    [[nodiscard]] std::uint64_t GetAttributeBits() const override;
    [[nodiscard]] std::size_t GetAttributeCount() const override;
    [[nodiscard]] Attribute GetAttributeAt(std::size_t index) const override;
    [[nodiscard]] ZAMLightXmlPosition GetFirstChildPosition() const override;
    [[nodiscard]] ZAMLightXmlElement GetNextChild(ZAMLightXmlPosition& position) const override;
    [[nodiscard]] ZAMUnicodeString GetTextContent() const override;
    [[nodiscard]] ZAMLightXmlPosition GetFirstTextPosition() const override;
    [[nodiscard]] TextRun GetNextText(ZAMLightXmlPosition& position) const override;
    [[nodiscard]] std::size_t GetDocumentSize() const override;
    [[nodiscard]] std::uint32_t GetLine() const override;
    [[nodiscard]] std::uint32_t GetColumn() const override;

private:
    std::shared_ptr<const ZAMLightXmlDocument> _Document;
    std::uint32_t _Node = 0;
};
