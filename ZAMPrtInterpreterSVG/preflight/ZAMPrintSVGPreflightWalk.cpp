// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightWalk.h"

#include "framework/base/ZAMTextCompare.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightValues.h"

namespace {

using Fault = ZAMPrintSVGFault;
using ZAMPrintSVGVocabulary::Holds;
using ZAMPrintSVGVocabulary::Role;

// Of another namespace.
bool IsForeign(std::string_view name) {
    return name.find(':') != std::string_view::npos && !name.starts_with(ZAMPrintSVGVocabulary::kPrefix);
}

bool HasCondition(const ZAMLightXmlElementItf& element) {
    return !element.GetAttribute("requiredExtensions").empty() || !element.GetAttribute("requiredFeatures").empty() ||
           !element.GetAttribute("systemLanguage").empty();
}

bool IsText(Role role) {
    return role == Role::Text || role == Role::TextPart;
}

} // namespace

// Drawings are the root, or else those of its children that are called so.
bool ZAMPrintSVGPreflightWalk::Check(const ZAMLightXmlElementItf& root) {
    _Ids.Index(root);
    bool hasDrawing = false;
    const auto visit = [&](const ZAMLightXmlElementItf& element) {
        const bool isDrawing = ZAMTextMatches(ZAMPrintSVGVocabulary::NameOf(element), "svg");
        if (isDrawing) {
            Visit(element, {Role::Container, "svg"});
        }
        hasDrawing = hasDrawing || isDrawing;
    };
    visit(root);
    for (ZAMLightXmlPosition position = hasDrawing ? 0 : root.GetFirstChildPosition(); position != 0;) {
        visit(root.GetNextChild(position));
    }
    _Fonts.Check();
    return hasDrawing;
}

void ZAMPrintSVGPreflightWalk::Visit(const ZAMLightXmlElementItf& element, const Place& place) {
    const ZAMPrintSVGVocabulary::Element* const row = FindRead(element, place);
    if (row == nullptr) {
        return;
    }
    const ZAMPrintSVGPreflightProperties::PaintScope scope(_Properties);
    const bool isDefs = row->name == "defs";
    _Ids.Enter(element, place.parent == "defs");
    const std::size_t valid = _Ids.CountValid();
    CheckAttributes(element, row->name);
    CheckLinks(element, row->name);
    if (row->role == Role::Text) {
        _Fonts.NoteText();
    }
    _Properties.CheckPaint(element, row->name);
    if (row->name == "style") {
        _Properties.CheckSheet(element);
    }
    VisitChildren(element, *row, place);
    if (!isDefs) { // what defs hold is valid to the end of the group around them
        _Ids.Leave(valid);
    }
}

// The element's row when it is read where it stands; else null, and a finding unless that is no loss.
const ZAMPrintSVGVocabulary::Element* ZAMPrintSVGPreflightWalk::FindRead(const ZAMLightXmlElementItf& element,
                                                                         const Place& place) {
    const std::string_view written = element.GetName();
    if (IsForeign(written)) {
        return nullptr;
    }
    if (written.starts_with(ZAMPrintSVGVocabulary::kPrefix) && _Mode == Mode::AsItStands) {
        _Report.Add(Fault::PrefixedName, element, written);
        return nullptr;
    }
    const auto* const row = ZAMPrintSVGVocabulary::FindElement(ZAMPrintSVGVocabulary::NameOf(element));
    if (row == nullptr && _Mode == Mode::Prepared && place.parent == "switch" && HasCondition(element)) {
        return nullptr; // the others are there for those who do not know it
    }
    if (row == nullptr) {
        _Report.Add(Fault::UnknownElement, element, written);
        return nullptr;
    }
    if (!ZAMPrintSVGVocabulary::IsRead(*row, _Mode)) {
        if (row->whereUnread) {
            _Report.Add(*row->whereUnread, element, written);
        }
        return nullptr;
    }
    if (!IsReadIn(*row, place)) {
        const bool isSpan = IsText(place.role) && (row->role == Role::TextPart || row->name == "a");
        _Report.Add(isSpan ? Fault::TextSpan : Fault::MisplacedElement, element, written, place.parent);
        return nullptr;
    }
    return row;
}

bool ZAMPrintSVGPreflightWalk::IsReadIn(const ZAMPrintSVGVocabulary::Element& row, const Place& place) const {
    if (row.role == Role::Aside) {
        return true;
    }
    switch (place.role) {
    case Role::Container:
        return row.role != Role::TextPart && row.role != Role::Stop &&
               !(_Mode == Mode::AsItStands && row.name == "marker" && Holds("pattern marker", ' ', place.parent));
    case Role::Gradient:
        return row.role == Role::Stop;
    case Role::Text:
    case Role::TextPart:
        return _Mode == Mode::Prepared && (row.role == Role::TextPart || row.name == "a");
    default:
        return false;
    }
}

void ZAMPrintSVGPreflightWalk::VisitChildren(const ZAMLightXmlElementItf& element,
                                             const ZAMPrintSVGVocabulary::Element& row, const Place& place) {
    const bool isInText = row.name == "a" && IsText(place.role);
    const Place inside{isInText ? Role::TextPart : row.role, row.name};
    for (ZAMLightXmlPosition position = element.GetFirstChildPosition(); position != 0;) {
        Visit(element.GetNextChild(position), inside);
    }
}

// Style comes last and wins.
void ZAMPrintSVGPreflightWalk::CheckAttributes(const ZAMLightXmlElementItf& element, std::string_view name) {
    for (std::size_t i = 0; i < element.GetAttributeCount(); ++i) {
        CheckAttribute(element, name, element.GetAttributeAt(i));
    }
    _Properties.CheckStyle(element, element.GetAttribute("style"));
}

void ZAMPrintSVGPreflightWalk::CheckAttribute(const ZAMLightXmlElementItf& element, std::string_view name,
                                              const ZAMLightXmlElementItf::Attribute& attribute) {
    if (attribute.name == "style" || attribute.name == "href" ||
        ZAMPrintSVGVocabulary::IsForeignAttribute(attribute.name)) {
        return;
    }
    const auto* const own = ZAMPrintSVGVocabulary::FindAttribute(attribute.name);
    if (own != nullptr) {
        CheckOwnAttribute(element, name, *own, attribute.value);
    } else if (ZAMPrintSVGVocabulary::FindProperty(attribute.name) != nullptr ||
               ZAMPrintSVGVocabulary::IsDrawn(attribute.name, _Mode)) {
        _Properties.CheckAttribute(element, attribute.name, attribute.value);
    } else {
        _Report.Add(Fault::UnknownAttribute, element, attribute.name, name);
    }
}

void ZAMPrintSVGPreflightWalk::CheckOwnAttribute(const ZAMLightXmlElementItf& element, std::string_view name,
                                                 const ZAMPrintSVGVocabulary::Attribute& row, std::string_view value) {
    if (ZAMPrintSVGVocabulary::IsReadBy(row, name, _Mode)) {
        if (_Mode == Mode::AsItStands && !value.empty()) {
            if (row.isLength) {
                ZAMPrintSVGPreflightValues::CheckLength(element, row.name, value, _Report);
            }
            ZAMPrintSVGPreflightValues::CheckNumbers(element, row.name, value, _Report);
        }
        return;
    }
    if (value.empty() || ZAMPrintSVGVocabulary::IsPlain(row.plain, value)) {
        return;
    }
    const bool isCondition = row.name == "requiredExtensions" || row.name == "systemLanguage";
    const bool isCorner = name == "rect" && (row.name == "rx" || row.name == "ry");
    _Report.Add(isCondition ? Fault::Condition
                : isCorner  ? Fault::RoundedCorners
                            : Fault::UnknownAttribute,
                element, row.name, name);
}

void ZAMPrintSVGPreflightWalk::CheckLinks(const ZAMLightXmlElementItf& element, std::string_view name) {
    const auto* const links = ZAMPrintSVGVocabulary::FindAttribute("xlink:href");
    if (!ZAMPrintSVGVocabulary::IsReadBy(*links, name, _Mode)) {
        return;
    }
    const std::string_view plain = element.GetAttribute("href");
    std::string_view link = element.GetAttribute("xlink:href");
    if (link.empty() && !plain.empty()) {
        if (_Mode == Mode::AsItStands) {
            _Report.Add(Fault::PlainLink, element, "href");
            return;
        }
        link = plain;
    }
    if (name == "image") {
        _Pictures.Check(element, link);
    } else if (name == "a" ? link.starts_with('#') : !link.empty()) {
        _References.CheckLink(element, link);
    }
}
