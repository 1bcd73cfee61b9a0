// SPDX-License-Identifier: MIT
#pragma once

#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGFault.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflight.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

/// What is read of documents: elements, their attributes, properties. What the interpreter reads as documents stand is
/// asked of its parser, but for the attributes of single elements, which its handlers name one by one. What prepared
/// documents may have besides is kept here.
namespace ZAMPrintSVGVocabulary {

using Mode = ZAMPrintSVGPreflight::Mode;

/// Of the elements of documents that have a prefix for SVG; prepared documents may have it.
inline constexpr std::string_view kPrefix = "svg:";
/// The element's name without that prefix.
std::string_view NameOf(const ZAMLightXmlElementItf& element);

/// What elements hold: which children count.
enum class Role : std::uint8_t { Container, Gradient, Stop, Text, TextPart, Leaf, Aside };

struct Element {
    std::string_view name;
    Role role;
    bool isPrepared;                             ///< read in prepared documents even if the parser does not know it
    std::optional<ZAMPrintSVGFault> whereUnread; ///< nothing where that is no loss, or is told where it is referred to
};
std::span<const Element> GetElements();
/// Letter case aside; null for a name that nobody knows.
const Element* FindElement(std::string_view name);
bool IsRead(const Element& element, Mode mode);

struct Attribute {
    std::string_view name;
    std::string_view elements;         ///< that read it as documents stand, separated by blanks
    std::string_view preparedElements; ///< those besides that do in prepared documents
    std::string_view plain; ///< values, a number first, separated by "|", that make no difference where it is not read
    bool isLength = false;
};
std::span<const Attribute> GetAttributes();
/// Of a single element; null for names that are none or are those of properties.
const Attribute* FindAttribute(std::string_view name);
bool IsReadBy(const Attribute& attribute, std::string_view element, Mode mode);
/// Attributes that say nothing about what is drawn: scripts, accessibility, other namespaces.
bool IsForeignAttribute(std::string_view name);

struct Property {
    std::string_view name;
    bool isPrepared;        ///< drawn in prepared documents
    std::string_view plain; ///< values that make no difference where it is not heard; "*" when no value does
};
/// Those of which more is to be told than the parser's table does.
std::span<const Property> GetProperties();
/// Letter case aside; null for others.
const Property* FindProperty(std::string_view name);
/// Whether the name, letter case aside, is that of a property that is heard in some form.
bool IsDrawn(std::string_view property, Mode mode);
/// Properties of other programs and custom properties.
bool IsForeignProperty(std::string_view name);

/// Whether a value is one of the plain ones of a row; numbers may be written in any way.
bool IsPlain(std::string_view plain, std::string_view value);

/// Whether the list, separated by `separator`, holds the word, letter case aside.
bool Holds(std::string_view list, char separator, std::string_view word);

} // namespace ZAMPrintSVGVocabulary
