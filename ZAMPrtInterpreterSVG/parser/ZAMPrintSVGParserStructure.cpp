// SPDX-License-Identifier: MIT
// The dispatch of child elements, and the containers g and a.
#include "framework/base/ZAMTextCompare.h"
#include "framework/model/ZAMPrtTypeList.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGParser.h"

#include <algorithm>

namespace {

// The classes that take children, in the order in which their names are tried.
using ContainerElements = ZAMPrtTypeList<ZAMPrtGroupElt, ZAMPrtImageElt, ZAMPrtDefsElt, ZAMPrtSymbolElt,
                                         ZAMPrtPatternElt, ZAMPrtClosedFigureRegionElt>;

} // namespace

// The handlers of titles and descriptions, which fill the parent itself.
template <int (ZAMPrintSVGParser::*parse)(const ZAMLightXmlElementItf&, ZAMPrtGraphicPrimitiveElt*)>
int ZAMPrintSVGParser::ParseOnto(const ZAMLightXmlElementItf& element, ZAMPrtGraphicPrimitiveElt* parent,
                                 int& /*definitions*/) {
    return (this->*parse)(element, parent);
}

// Creates the model's element, attaches it and has it filled, in this order: an element whose own parse fails half way
// is in its parent all the same.
template <class Element, int (ZAMPrintSVGParser::*parse)(const ZAMLightXmlElementItf&, Element*)>
int ZAMPrintSVGParser::ParseNew(const ZAMLightXmlElementItf& element, ZAMPrtGraphicPrimitiveElt* parent,
                                int& /*definitions*/) {
    const auto created = ZAMNew<Element>();
    if (!created) {
        return 0;
    }
    AddChildElt(parent, created.Get());
    return (this->*parse)(element, created.Get());
}

// The same for elements whose markers go to the parent.
template <class Element,
          int (ZAMPrintSVGParser::*parse)(const ZAMLightXmlElementItf&, Element*, ZAMPrtGraphicPrimitiveElt*)>
int ZAMPrintSVGParser::ParseNewIn(const ZAMLightXmlElementItf& element, ZAMPrtGraphicPrimitiveElt* parent,
                                  int& /*definitions*/) {
    const auto created = ZAMNew<Element>();
    if (!created) {
        return 0;
    }
    AddChildElt(parent, created.Get());
    return (this->*parse)(element, created.Get(), parent);
}

// Definitions attach nothing to the parent.
template <int (ZAMPrintSVGParser::*parse)(const ZAMLightXmlElementItf&, int&)>
int ZAMPrintSVGParser::ParseDefinition(const ZAMLightXmlElementItf& element, ZAMPrtGraphicPrimitiveElt* /*parent*/,
                                       int& definitions) {
    return (this->*parse)(element, definitions);
}

// In the order in which the names are tried.
const ZAMPrintSVGParser::ElementRow ZAMPrintSVGParser::kDescriptionRows[] = {
    {"desc", &P::ParseOnto<&P::ParseDescElement>},
    {"title", &P::ParseOnto<&P::ParseTitleElement>},
};
const ZAMPrintSVGParser::ElementRow ZAMPrintSVGParser::kGraphicPrimitiveRows[] = {
    {"path", &P::ParseNew<ZAMPrtGroupElt, &P::ParsePathElement>},
    {"text", &P::ParseNew<ZAMPrtTextElt, &P::ParseTextElement>},
    {"rect", &P::ParseNew<ZAMPrtRectangleElt, &P::ParseRectElement>},
    {"circle", &P::ParseNew<ZAMPrtCircleElt, &P::ParseCircleElement>},
    {"ellipse", &P::ParseNew<ZAMPrtEllipseElt, &P::ParseEllipseElement>},
    {"line", &P::ParseNewIn<ZAMPrtLineElt, &P::ParseLineElement>},
    {"polyline", &P::ParseNewIn<ZAMPrtPolylineElt, &P::ParsePolylineElement>},
    {"polygon", &P::ParseNewIn<ZAMPrtPolygonElt, &P::ParsePolygonElement>},
    {"image", &P::ParseNew<ZAMPrtBitmapImageElt, &P::ParseBitmapImageElement>},
};
const ZAMPrintSVGParser::ElementRow ZAMPrintSVGParser::kStructureRows[] = {
    {"g", &P::ParseNew<ZAMPrtGroupElt, &P::ParseGroupElement>}, {"defs", &P::ParseDefinition<&P::ParseDefsElement>},
    {"use", &P::ParseNew<ZAMPrtGroupElt, &P::ParseUseElement>}, {"symbol", &P::ParseDefinition<&P::ParseSymbolElement>},
    {"svg", &P::ParseNew<ZAMPrtGroupElt, &P::ParseSVGElement>},
};
const ZAMPrintSVGParser::ElementRow ZAMPrintSVGParser::kMarkerRows[] = {
    {"marker", &P::ParseDefinition<&P::ParseMarkerElement>},
};
const ZAMPrintSVGParser::ElementRow ZAMPrintSVGParser::kHyperlinkRows[] = {
    {"a", &P::ParseNew<ZAMPrtGroupElt, &P::ParseLinkElement>},
};
const ZAMPrintSVGParser::ElementRow ZAMPrintSVGParser::kPatternRows[] = {
    {"pattern", &P::ParseDefinition<&P::ParsePatternElement>},
};

// Calls `visit` with each row of each table.
template <class Visit> void ZAMPrintSVGParser::VisitElementRows(Visit visit) {
    for (const ElementRows rows :
         {ElementRows(kDescriptionRows), ElementRows(kGraphicPrimitiveRows), ElementRows(kStructureRows),
          ElementRows(kMarkerRows), ElementRows(kHyperlinkRows), ElementRows(kPatternRows)}) {
        std::ranges::for_each(rows, visit);
    }
}

bool ZAMPrintSVGParser::IsElement(std::string_view name) {
    bool isFound = false;
    VisitElementRows([&](const ElementRow& row) { isFound = isFound || ZAMTextMatches(row.name, name); });
    return isFound;
}

std::vector<std::string_view> ZAMPrintSVGParser::GetElementNames() {
    std::vector<std::string_view> names;
    VisitElementRows([&](const ElementRow& row) { names.push_back(row.name); });
    return names;
}

int ZAMPrintSVGParser::ParseChildAs(ElementRows rows, const ZAMLightXmlElementItf& element, std::string_view name,
                                    ZAMPrtGraphicPrimitiveElt* parent, int& definitions) {
    if (parent == nullptr) {
        return -1;
    }
    for (const ElementRow& row : rows) {
        if (ZAMTextMatches(row.name, name)) {
            return (this->*row.parse)(element, parent, definitions);
        }
    }
    return 1;
}

int ZAMPrintSVGParser::ParseChildEltAsDescriptionElement(const ZAMLightXmlElementItf& element, std::string_view name,
                                                         ZAMPrtGraphicPrimitiveElt* parent, int& definitions) {
    return ParseChildAs(kDescriptionRows, element, name, parent, definitions);
}

int ZAMPrintSVGParser::ParseChildEltAsGraphicPrimitiveElement(const ZAMLightXmlElementItf& element,
                                                              std::string_view name, ZAMPrtGraphicPrimitiveElt* parent,
                                                              int& definitions) {
    return ParseChildAs(kGraphicPrimitiveRows, element, name, parent, definitions);
}

int ZAMPrintSVGParser::ParseChildEltAsStructureElement(const ZAMLightXmlElementItf& element, std::string_view name,
                                                       ZAMPrtGraphicPrimitiveElt* parent, int& definitions) {
    return ParseChildAs(kStructureRows, element, name, parent, definitions);
}

int ZAMPrintSVGParser::ParseChildEltAsMarkerElement(const ZAMLightXmlElementItf& element, std::string_view name,
                                                    ZAMPrtGraphicPrimitiveElt* parent, int& definitions) {
    return ParseChildAs(kMarkerRows, element, name, parent, definitions);
}

int ZAMPrintSVGParser::ParseChildEltAsHyperlinkElement(const ZAMLightXmlElementItf& element, std::string_view name,
                                                       ZAMPrtGraphicPrimitiveElt* parent, int& definitions) {
    return ParseChildAs(kHyperlinkRows, element, name, parent, definitions);
}

int ZAMPrintSVGParser::ParseChildEltAsPatternElement(const ZAMLightXmlElementItf& element, std::string_view name,
                                                     ZAMPrtGraphicPrimitiveElt* parent, int& definitions) {
    return ParseChildAs(kPatternRows, element, name, parent, definitions);
}

// The operations that containers offer their children to, in order: images, groups, links, symbols take all, defs no
// descriptions, patterns and markers no markers.
const ZAMPrintSVGParser::ChildOperation ZAMPrintSVGParser::kAllChildren[] = {
    &ZAMPrintSVGParser::ParseChildEltAsDescriptionElement, &ZAMPrintSVGParser::ParseChildEltAsGraphicPrimitiveElement,
    &ZAMPrintSVGParser::ParseChildEltAsStructureElement,   &ZAMPrintSVGParser::ParseChildEltAsMarkerElement,
    &ZAMPrintSVGParser::ParseChildEltAsHyperlinkElement,   &ZAMPrintSVGParser::ParseChildEltAsPatternElement,
};
const ZAMPrintSVGParser::ChildOperation ZAMPrintSVGParser::kDefsChildren[] = {
    &ZAMPrintSVGParser::ParseChildEltAsGraphicPrimitiveElement, &ZAMPrintSVGParser::ParseChildEltAsStructureElement,
    &ZAMPrintSVGParser::ParseChildEltAsMarkerElement,           &ZAMPrintSVGParser::ParseChildEltAsHyperlinkElement,
    &ZAMPrintSVGParser::ParseChildEltAsPatternElement,
};
const ZAMPrintSVGParser::ChildOperation ZAMPrintSVGParser::kTileChildren[] = {
    &ZAMPrintSVGParser::ParseChildEltAsDescriptionElement, &ZAMPrintSVGParser::ParseChildEltAsGraphicPrimitiveElement,
    &ZAMPrintSVGParser::ParseChildEltAsStructureElement,   &ZAMPrintSVGParser::ParseChildEltAsHyperlinkElement,
    &ZAMPrintSVGParser::ParseChildEltAsPatternElement,
};

// Each child is offered to the operations in turn until one knows its name; whatever nobody knows is skipped with all
// that it holds.
int ZAMPrintSVGParser::ParseChildren(const ZAMLightXmlElementItf& element, std::span<const ChildOperation> operations,
                                     ZAMPrtGraphicPrimitiveElt* parent, int& definitions) {
    int result = 0;
    for (ZAMLightXmlPosition position = element.GetFirstChildPosition(); position != 0;) {
        const ZAMLightXmlElement child = element.GetNextChild(position);
        for (const ChildOperation operation : operations) {
            result = (this->*operation)(child, child.GetName(), parent, definitions);
            if (result != 1) {
                break;
            }
        }
    }
    return result;
}

// What is defined among the children ends with them.
int ZAMPrintSVGParser::ParseScopedChildren(const ZAMLightXmlElementItf& element,
                                           std::span<const ChildOperation> operations,
                                           ZAMPrtGraphicPrimitiveElt* parent) {
    int definitions = 0;
    const int result = ParseChildren(element, operations, parent, definitions);
    _DefsList.RemoveLast(definitions);
    return result;
}

// Elements without graphic children offer theirs to the descriptions only.
void ZAMPrintSVGParser::ParseDescriptions(const ZAMLightXmlElementItf& element, ZAMPrtGraphicPrimitiveElt* target) {
    for (ZAMLightXmlPosition position = element.GetFirstChildPosition(); position != 0;) {
        const ZAMLightXmlElement child = element.GetNextChild(position);
        int definitions = 0;
        ParseChildEltAsDescriptionElement(child, child.GetName(), target, definitions);
    }
}

int ZAMPrintSVGParser::AddChildElt(ZAMPrtGraphicPrimitiveElt* parent, ZAMPrtGraphicPrimitiveElt* child) {
    if (parent == nullptr || child == nullptr) {
        return -1;
    }
    return ContainerElements::Visit(parent, [child](auto& container) { container.AddChild(child); }) ? 0 : -1;
}

int ZAMPrintSVGParser::ParseGroupElement(const ZAMLightXmlElementItf& element, ZAMPrtGroupElt* group) {
    if (group == nullptr) {
        return -1;
    }
    const ZAMPrintSVGStateScope saved(*this, MayChangeState(element) ? ZAMPrintSVGSaved::All : ZAMPrintSVGSaved::Text);
    ParsePresentationAttrib(element, group);
    ParseStyleAttrib(element);
    ParseCoreAttrib(element, group);
    ParseTransformAttrib(element, group);
    return ParseScopedChildren(element, kAllChildren, group);
}

int ZAMPrintSVGParser::ParseLinkElement(const ZAMLightXmlElementItf& element, ZAMPrtGroupElt* group) {
    ParseXLinkReplaceAttrib(element, group);
    return ParseGroupElement(element, group);
}
