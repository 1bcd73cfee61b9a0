// SPDX-License-Identifier: MIT
// The dispatch of child elements, and the containers g and a.
#include "framework/base/ZAMTextCompare.h"
#include "framework/model/ZAMPrtTypeList.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGParser.h"

namespace {

// The classes that take children, in the order in which their names are tried.
using ContainerElements = ZAMPrtTypeList<ZAMPrtGroupElt, ZAMPrtImageElt, ZAMPrtClosedFigureRegionElt>;

} // namespace

// Creates the model's element, attaches it and has it filled, in this order: an element whose own parse fails half way
// is in its parent all the same.
template <class Element, int (ZAMPrintSVGParser::*parse)(const ZAMLightXmlElementItf&, Element*)>
int ZAMPrintSVGParser::ParseNew(const ZAMLightXmlElementItf& element, ZAMPrtGraphicPrimitiveElt* parent) {
    const auto created = ZAMNew<Element>();
    if (!created) {
        return 0;
    }
    AddChildElt(parent, created.Get());
    return (this->*parse)(element, created.Get());
}

int ZAMPrintSVGParser::ParseChildAs(std::span<const ElementRow> rows, const ZAMLightXmlElementItf& element,
                                    std::string_view name, ZAMPrtGraphicPrimitiveElt* parent) {
    if (parent == nullptr) {
        return -1;
    }
    for (const ElementRow& row : rows) {
        if (ZAMTextMatches(row.name, name)) {
            return (this->*row.parse)(element, parent);
        }
    }
    return 1;
}

int ZAMPrintSVGParser::ParseChildEltAsDescriptionElement(const ZAMLightXmlElementItf& element, std::string_view name,
                                                         ZAMPrtGraphicPrimitiveElt* parent) {
    static constexpr ElementRow kRows[] = {
        {"desc", &ZAMPrintSVGParser::ParseDescElement},
        {"title", &ZAMPrintSVGParser::ParseTitleElement},
    };
    return ParseChildAs(kRows, element, name, parent);
}

int ZAMPrintSVGParser::ParseChildEltAsGraphicPrimitiveElement(const ZAMLightXmlElementItf& element,
                                                              std::string_view name,
                                                              ZAMPrtGraphicPrimitiveElt* parent) {
    using P = ZAMPrintSVGParser;
    static constexpr ElementRow kRows[] = {
        {"path", &P::ParseNew<ZAMPrtGroupElt, &P::ParsePathElement>},
        {"text", &P::ParseNew<ZAMPrtTextElt, &P::ParseTextElement>},
        {"rect", &P::ParseNew<ZAMPrtRectangleElt, &P::ParseRectElement>},
        {"circle", &P::ParseNew<ZAMPrtCircleElt, &P::ParseCircleElement>},
        {"ellipse", &P::ParseNew<ZAMPrtEllipseElt, &P::ParseEllipseElement>},
        {"line", &P::ParseNew<ZAMPrtLineElt, &P::ParseLineElement>},
        {"polyline", &P::ParseNew<ZAMPrtPolylineElt, &P::ParsePolylineElement>},
        {"polygon", &P::ParseNew<ZAMPrtPolygonElt, &P::ParsePolygonElement>},
    };
    return ParseChildAs(kRows, element, name, parent);
}

int ZAMPrintSVGParser::ParseChildEltAsStructureElement(const ZAMLightXmlElementItf& element, std::string_view name,
                                                       ZAMPrtGraphicPrimitiveElt* parent) {
    using P = ZAMPrintSVGParser;
    static constexpr ElementRow kRows[] = {
        {"g", &P::ParseNew<ZAMPrtGroupElt, &P::ParseGroupElement>},
        {"svg", &P::ParseNew<ZAMPrtGroupElt, &P::ParseSVGElement>},
    };
    return ParseChildAs(kRows, element, name, parent);
}

int ZAMPrintSVGParser::ParseChildEltAsHyperlinkElement(const ZAMLightXmlElementItf& element, std::string_view name,
                                                       ZAMPrtGraphicPrimitiveElt* parent) {
    static constexpr ElementRow kRows[] = {
        {"a", &ZAMPrintSVGParser::ParseNew<ZAMPrtGroupElt, &ZAMPrintSVGParser::ParseLinkElement>},
    };
    return ParseChildAs(kRows, element, name, parent);
}

// Each child is offered to the operations in turn until one knows its name; whatever nobody knows is skipped with all
// that it holds.
int ZAMPrintSVGParser::ParseChildren(const ZAMLightXmlElementItf& element, ZAMPrtGraphicPrimitiveElt* parent) {
    using Operation =
        int (ZAMPrintSVGParser::*)(const ZAMLightXmlElementItf&, std::string_view, ZAMPrtGraphicPrimitiveElt*);
    static constexpr Operation kChain[] = {
        &ZAMPrintSVGParser::ParseChildEltAsDescriptionElement,
        &ZAMPrintSVGParser::ParseChildEltAsGraphicPrimitiveElement,
        &ZAMPrintSVGParser::ParseChildEltAsStructureElement,
        &ZAMPrintSVGParser::ParseChildEltAsHyperlinkElement,
    };
    int result = 0;
    for (ZAMLightXmlPosition position = element.GetFirstChildPosition(); position != 0;) {
        const ZAMLightXmlElement child = element.GetNextChild(position);
        for (const Operation operation : kChain) {
            result = (this->*operation)(child, child.GetName(), parent);
            if (result != 1) {
                break;
            }
        }
    }
    return result;
}

// Elements without graphic children offer theirs to the descriptions only.
void ZAMPrintSVGParser::ParseDescriptions(const ZAMLightXmlElementItf& element, ZAMPrtGraphicPrimitiveElt* target) {
    for (ZAMLightXmlPosition position = element.GetFirstChildPosition(); position != 0;) {
        const ZAMLightXmlElement child = element.GetNextChild(position);
        ParseChildEltAsDescriptionElement(child, child.GetName(), target);
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
    const ZAMPrintSVGStateScope saved(*this);
    ParsePresentationAttrib(element, group);
    ParseStyleAttrib(element);
    ParseCoreAttrib(element, group);
    ParseTransformAttrib(element, group);
    return ParseChildren(element, group);
}

int ZAMPrintSVGParser::ParseLinkElement(const ZAMLightXmlElementItf& element, ZAMPrtGroupElt* group) {
    ParseXLinkReplaceAttrib(element, group);
    return ParseGroupElement(element, group);
}
