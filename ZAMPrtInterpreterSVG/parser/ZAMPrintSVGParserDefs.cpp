// SPDX-License-Identifier: MIT
// Definitions (SVG 1.1, 5.3 and 5.5): defs and symbol elements, and how what they define is found and completed.
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGParser.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGUnset.h"

// A definition with the state as it stands; text attributes are not recorded.
ZAMRef<ZAMPrtDefsElt> ZAMPrintSVGParser::NewDefinition() const {
    auto definition = ZAMNew<ZAMPrtDefsElt>();
    if (definition) {
        definition->SetDrawStyle(_DrawStyle);
        definition->SetStrokeAttributes(_StrokeAttributes);
        definition->SetFillAttributes(_FillAttributes);
    }
    return definition;
}

// What the children do not set themselves is left open, to be completed where they are used.
int ZAMPrintSVGParser::ParseDefsElement(const ZAMLightXmlElementItf& element, int& definitions) {
    const auto definition = ZAMNew<ZAMPrtDefsElt>();
    if (!definition) {
        return -1;
    }
    const ZAMPrintSVGDefinitions::OpenScope open(_DefsList, definition);
    ++definitions;
    const ZAMPrintSVGStateScope saved(*this);
    ParsePresentationAttrib(element, definition.Get());
    ParseStyleAttrib(element);
    ParseCoreAttrib(element, definition.Get());
    definition->SetDrawStyle(_DrawStyle);
    definition->SetStrokeAttributes(_StrokeAttributes);
    definition->SetFillAttributes(_FillAttributes);
    ParseTransformAttrib(element, definition.Get());
    InitDefsEltAttributes();
    return ParseChildren(element, kDefsChildren, definition.Get(), definitions);
}

// Unlike those of a defs element, the symbol's own attributes are read over the unset ones, and so hold in its content.
int ZAMPrintSVGParser::ParseSymbolElement(const ZAMLightXmlElementItf& element, int& definitions) {
    const auto definition = NewDefinition();
    const auto symbol = ZAMNew<ZAMPrtSymbolElt>();
    if (!definition || !symbol) {
        return -1;
    }
    const ZAMPrintSVGDefinitions::OpenScope open(_DefsList, definition);
    ++definitions;
    definition->AddChild(symbol.Get());
    const ZAMPrintSVGStateScope saved(*this);
    InitDefsEltAttributes();
    ParsePresentationAttrib(element, symbol.Get());
    ParseStyleAttrib(element);
    ParseCoreAttrib(element, symbol.Get());
    const ViewBox box = ReadViewBox(element, {0.0, 0.0, 0.0, 0.0});
    if (box.differs) {
        ZAMPrtTransformAttributes transform = symbol->GetTransformAttributes();
        if (_FlipY) {
            // The box's upper left corner comes to lie on the document's.
            transform.AddTranslation({0.0, _ImageHeight - box.height});
        }
        symbol->SetTransformAttributes(transform);
        symbol->SetOrigin({box.minX, _FlipY ? _ImageHeight - box.minY - box.height : box.minY});
        symbol->SetSize(box.width, box.height);
    }
    return ParseScopedChildren(element, kAllChildren, symbol.Get());
}

int ZAMPrintSVGParser::InitDefsEltAttributes() {
    ZAMPrintSVGUnset::Mark(*this);
    return 1;
}

int ZAMPrintSVGParser::ModifyDefsEltAttributes(ZAMPrtGraphicPrimitiveElt* element) {
    if (element == nullptr) {
        return 0;
    }
    ZAMPrintSVGUnset::Complete(*element, *this);
    return 1;
}

bool ZAMPrintSVGParser::IsStateOf(const ZAMPrtDefsElt& definition) const {
    return definition.GetDrawStyle() == _DrawStyle && definition.GetStrokeAttributes() == _StrokeAttributes &&
           definition.GetFillAttributes() == _FillAttributes && definition.GetTextAttributes() == _TextAttributes;
}

// The stored element itself is completed, for good: who refers to it later gets what the first reference left.
void ZAMPrintSVGParser::CompleteShared(const ZAMPrintSVGDefinitions::Found& found) {
    if (found.isCompleted == nullptr || !*found.isCompleted) {
        ModifyDefsEltAttributes(found.element);
    }
    if (found.isCompleted != nullptr) {
        *found.isCompleted = true;
    }
}

// Where the state is that of the definition the element is shared, else copied.
int ZAMPrintSVGParser::GetDefsElt(const ZAMPrintSVGReference& id, ZAMRef<ZAMPrtGraphicPrimitiveElt>& result) {
    result = {};
    const ZAMPrintSVGDefinitions::Found found = _DefsList.Find(id);
    if (found.element == nullptr) {
        return 0;
    }
    if (IsStateOf(*found.definition)) {
        CompleteShared(found);
        result = ZAMRef<ZAMPrtGraphicPrimitiveElt>::Share(found.element);
    } else {
        result = found.element->Duplicate();
        ModifyDefsEltAttributes(result.Get());
    }
    return 1;
}

int ZAMPrintSVGParser::GetEltFromURI(const ZAMPrintSVGReference* id, ZAMRef<ZAMPrtGraphicPrimitiveElt>& result) {
    return id != nullptr && GetDefsElt(*id, result) == 1 ? 1 : -1;
}
