// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightProperties.h"

#include "framework/base/ZAMNumberReading.h"
#include "framework/base/ZAMTextCompare.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGParser.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightValues.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGStyleText.h"

namespace {

using Fault = ZAMPrintSVGFault;
using ZAMPrintSVGVocabulary::Holds;
using ZAMPrintSVGVocabulary::Role;

constexpr std::string_view kGroups = "g a svg switch";

// Whether things in a group may overlap: there are two of them, as far as a look at the first children tells.
bool HoldsSeveral(const ZAMLightXmlElementItf& element) {
    constexpr int kMostLookedAt = 100;
    int drawn = 0;
    ZAMLightXmlPosition position = element.GetFirstChildPosition();
    for (int i = 0; i < kMostLookedAt && position != 0; ++i) {
        const ZAMLightXmlElement child = element.GetNextChild(position);
        const auto* const row = ZAMPrintSVGVocabulary::FindElement(ZAMPrintSVGVocabulary::NameOf(child));
        const bool isDrawn =
            row != nullptr && (row->role == Role::Leaf || row->role == Role::Text || Holds(kGroups, ' ', row->name));
        drawn += isDrawn ? 1 : 0;
    }
    return drawn > 1;
}

bool IsFaded(std::string_view opacity) {
    double value = 1.0;
    return ZAMReadDouble(opacity, value) == 1 && value > 0.0 && value < (opacity.ends_with('%') ? 100.0 : 1.0);
}

} // namespace

// Of shapes with corners.
void ZAMPrintSVGPreflightProperties::CheckPaint(const ZAMLightXmlElementItf& element, std::string_view name) {
    if (name == "polyline" && _Paint.isFilled && _Mode == Mode::AsItStands) {
        _Report.Add(Fault::FilledLine, element);
    }
    if (Holds("path polyline polygon", ' ', name) && _Paint.isStroked && _Paint.isMitred &&
        !ZAMPrintSVGVocabulary::IsPlain("4", _Paint.miterLimit) && _MiterLimits.insert(_Paint.miterLimit).second) {
        _Report.Add(Fault::MiterLimit, element, "stroke-miterlimit", _Paint.miterLimit);
    }
}

void ZAMPrintSVGPreflightProperties::NotePaint(std::string_view property, std::string_view value) {
    if (ZAMTextMatches(value, "inherit")) {
        return;
    }
    if (ZAMTextMatches(property, "fill")) {
        _Paint.isFilled = !ZAMTextMatches(value, "none");
    } else if (ZAMTextMatches(property, "stroke")) {
        // Prepared documents have strokes with gradients and patterns as outlines, which heed the limit.
        const bool isOutline = _Mode == Mode::Prepared && value.starts_with("url");
        _Paint.isStroked = !isOutline && !ZAMTextMatches(value, "none");
    } else if (ZAMTextMatches(property, "stroke-linejoin")) {
        _Paint.isMitred = ZAMTextMatches(value, "miter");
    } else if (ZAMTextMatches(property, "stroke-miterlimit")) {
        _Paint.miterLimit = value;
    }
}

void ZAMPrintSVGPreflightProperties::CheckSheet(const ZAMLightXmlElementItf& element) {
    const ZAMUnicodeString text = element.GetTextContent();
    const std::string sheet = ZAMPrintSVGStyleText::WithoutComments(text);
    ZAMPrintSVGStyleText::ForEachRule(sheet, {[&](std::string_view block) { CheckStyle(element, block); },
                                              [&](std::string_view name, std::string_view prelude) {
                                                  if (ZAMTextMatches(name, "@import")) {
                                                      _Report.Add(Fault::StyleImport, element, prelude);
                                                  } else if (ZAMTextMatches(name, "@font-face")) {
                                                      _Report.Add(Fault::WebFont, element, name);
                                                  }
                                              }});
}

void ZAMPrintSVGPreflightProperties::CheckStyle(const ZAMLightXmlElementItf& element, std::string_view declarations) {
    std::string plain;
    if (declarations.find("/*") != std::string_view::npos) {
        plain = ZAMPrintSVGStyleText::WithoutComments(declarations);
        declarations = plain;
    }
    ZAMPrintSVGStyleText::ForEachDeclaration(declarations, [&](std::string_view property, std::string_view value) {
        CheckProperty(element, property, value, Form::Style);
    });
}

void ZAMPrintSVGPreflightProperties::CheckAttribute(const ZAMLightXmlElementItf& element, std::string_view property,
                                                    std::string_view value) {
    CheckProperty(element, property, value, Form::Attribute);
}

void ZAMPrintSVGPreflightProperties::CheckProperty(const ZAMLightXmlElementItf& element, std::string_view property,
                                                   std::string_view value, Form form) {
    if (value.empty() || ZAMPrintSVGVocabulary::IsForeignProperty(property)) {
        return;
    }
    NotePaint(property, value);
    if (CheckEffect(element, property, value)) {
        return;
    }
    if (ZAMPrintSVGVocabulary::IsDrawn(property, _Mode)) {
        if (_Mode == Mode::Prepared || CheckForm(element, property, value, form)) {
            CheckPropertyValue(element, property, value);
        }
        return;
    }
    const auto* const row = ZAMPrintSVGVocabulary::FindProperty(property);
    if (row == nullptr || !ZAMPrintSVGVocabulary::IsPlain(row->plain, value)) {
        _Report.Add(Fault::UnknownProperty, element, property);
    }
}

// What has a finding of its own. False for other properties.
bool ZAMPrintSVGPreflightProperties::CheckEffect(const ZAMLightXmlElementItf& element, std::string_view property,
                                                 std::string_view value) {
    struct Row {
        std::string_view property;
        Fault fault;
    };
    constexpr Row kRows[] = {{"mask", Fault::Mask}, {"filter", Fault::Filter}, {"mix-blend-mode", Fault::BlendMode}};
    const bool isSet = !Holds("none|normal|inherit|initial|unset", '|', value);
    for (const Row& row : kRows) {
        if (ZAMTextMatches(row.property, property)) {
            if (isSet) {
                _Report.Add(row.fault, element, row.property, value);
            }
            return true;
        }
    }
    if (!ZAMTextMatches(property, "clip-path")) {
        return ZAMTextMatches(property, "stroke-miterlimit"); // told of the shapes that it matters to
    }
    if (isSet) {
        _References.CheckClipPath(element, value);
    }
    return true;
}

// Whether documents as they stand are heard in this form.
bool ZAMPrintSVGPreflightProperties::CheckForm(const ZAMLightXmlElementItf& element, std::string_view property,
                                               std::string_view value, Form form) {
    const auto known = ZAMPrintSVGParser::FindProperty(property);
    const bool isAttribute = form == Form::Attribute;
    if (isAttribute ? known->asAttribute : known->inStyle) {
        return true;
    }
    const auto* const row = ZAMPrintSVGVocabulary::FindProperty(property);
    if (row == nullptr || !ZAMPrintSVGVocabulary::IsPlain(row->plain, value)) {
        _Report.Add(isAttribute ? Fault::PropertyOnlyInStyle : Fault::PropertyOnlyAsAttribute, element, property);
    }
    return false;
}

void ZAMPrintSVGPreflightProperties::CheckPropertyValue(const ZAMLightXmlElementItf& element, std::string_view property,
                                                        std::string_view value) {
    if (ZAMTextMatches(property, "fill")) {
        _References.CheckFill(element, value);
    } else if (ZAMTextMatches(property, "stroke")) {
        _References.CheckStroke(element, value);
    } else if (ZAMTextMatches(property.substr(0, 6), "marker")) {
        _References.CheckMarker(element, property, value);
    } else if (ZAMTextMatches(property, "font-family")) {
        _Fonts.Note(element, value);
    } else if (ZAMTextMatches(property, "font")) {
        _Fonts.Note(element, ZAMPrintSVGStyleText::FamiliesOfFont(value));
    }
    const bool isOpacity = ZAMTextMatches(property, "opacity");
    if (isOpacity && Holds(kGroups, ' ', ZAMPrintSVGVocabulary::NameOf(element)) && IsFaded(value) &&
        HoldsSeveral(element)) {
        _Report.Add(Fault::GroupOpacity, element, property);
    }
    if (_Mode == Mode::AsItStands) {
        ZAMPrintSVGPreflightValues::CheckProperty(element, property, value, _Report);
        if (isOpacity && ZAMTextMatches(element.GetName(), "image") && IsFaded(value)) {
            _Report.Add(Fault::ImageOpacity, element);
        }
    }
}
