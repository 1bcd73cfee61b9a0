// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/base/ZAMUnicodeString.h"
#include "framework/lightxml/ZAMLightXmlName.h"

#include <cstdint>
#include <string_view>

class ZAMLightXmlElement;

/// Where an iteration over child elements stands; 0 after the last child.
using ZAMLightXmlPosition = std::uintptr_t;

/// The read-only view of an XML element. Names are the qualified names as written ("xlink:href"). Views stay valid as
/// long as any element of the same document lives.
class ZAM_EXPORT ZAMLightXmlElementItf {
public:
    ZAMLightXmlElementItf() = default;
    ZAMLightXmlElementItf(const ZAMLightXmlElementItf&) = default;
    ZAMLightXmlElementItf& operator=(const ZAMLightXmlElementItf&) = default;
    virtual ~ZAMLightXmlElementItf();

    /// Empty for an element that was never filled.
    [[nodiscard]] virtual std::string_view GetName() const = 0;

    /// The attribute's value, normalised as XML asks (a tab or line break is a blank unless written as a character
    /// reference); empty when the element has no such attribute. Letter case counts in names.
    [[nodiscard]] virtual std::string_view GetAttribute(const ZAMLightXmlName& name) const = 0;

    /// The bits of the names of all its attributes (ZAMLightXmlName): an attribute whose bit is not among them is not
    /// there.
    [[nodiscard]] virtual std::uint64_t GetAttributeBits() const = 0;

    /// Attributes in document order; `index` is below the count.
    struct Attribute {
        std::string_view name;
        std::string_view value;
    };
    [[nodiscard]] virtual std::size_t GetAttributeCount() const = 0;
    [[nodiscard]] virtual Attribute GetAttributeAt(std::size_t index) const = 0;

    /// The position of the first child element, 0 when there is none.
    [[nodiscard]] virtual ZAMLightXmlPosition GetFirstChildPosition() const = 0;
    /// The child at `position`, which moves on to the next one. An empty element when `position` is 0.
    [[nodiscard]] virtual ZAMLightXmlElement GetNextChild(ZAMLightXmlPosition& position) const = 0;

    /// The element's own character data, CDATA included, in document order, without that of its child elements.
    [[nodiscard]] virtual ZAMUnicodeString GetTextContent() const = 0;

    /// A run of character data among the child elements; runs with the same count follow one another.
    struct TextRun {
        std::string_view text;
        std::size_t childrenBefore; ///< so many of the element's children come before it
    };
    /// The position of the first run of character data, 0 when there is none.
    [[nodiscard]] virtual ZAMLightXmlPosition GetFirstTextPosition() const = 0;
    /// The run at `position`, which moves on to the next one. An empty run when `position` is 0.
    [[nodiscard]] virtual TextRun GetNextText(ZAMLightXmlPosition& position) const = 0;

    /// The bytes of all names, values and character data of the document that the element belongs to.
    [[nodiscard]] virtual std::size_t GetDocumentSize() const = 0;

    /// Where the element's start tag stands in the document, from 1; 0 when unknown. Columns count characters.
    [[nodiscard]] virtual std::uint32_t GetLine() const = 0;
    [[nodiscard]] virtual std::uint32_t GetColumn() const = 0;
};
