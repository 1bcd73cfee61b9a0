// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightReferences.h"

#include "framework/base/ZAMTextCompare.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGClipShape.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGVocabulary.h"

namespace {

using Fault = ZAMPrintSVGFault;

bool IsOneOf(const ZAMLightXmlElementItf& element, std::string_view names) {
    return ZAMPrintSVGVocabulary::Holds(names, ' ', ZAMPrintSVGVocabulary::NameOf(element));
}

// Of a pattern only the pictures directly in it are drawn.
bool HasPicture(const ZAMLightXmlElementItf& pattern) {
    for (ZAMLightXmlPosition position = pattern.GetFirstChildPosition(); position != 0;) {
        if (ZAMTextMatches(pattern.GetNextChild(position).GetName(), "image")) {
            return true;
        }
    }
    return false;
}

} // namespace

ZAMPrintSVGPreflightIds::Target* ZAMPrintSVGPreflightReferences::Find(const ZAMLightXmlElementItf& element,
                                                                      std::string_view link, std::string_view without) {
    if (!link.starts_with('#')) {
        _Report.Add(Fault::ExternalReference, element, link);
        return nullptr;
    }
    Target* const target = _Ids.Find(link.substr(1));
    if (target == nullptr) {
        _Report.Add(Fault::MissingReference, element, link.substr(1), without);
    }
    return target;
}

bool ZAMPrintSVGPreflightReferences::IsValid(const ZAMLightXmlElementItf& element, std::string_view id,
                                             const Target& target) {
    if (_Mode == Mode::Prepared || target.validCount > 0) {
        return true;
    }
    _Report.Add(!target.isDefinition ? Fault::HiddenDefinition
                : target.wasSeen     ? Fault::EndedDefinition
                                     : Fault::LateDefinition,
                element, id);
    return false;
}

void ZAMPrintSVGPreflightReferences::CheckLink(const ZAMLightXmlElementItf& element, std::string_view link) {
    const bool isUse = IsOneOf(element, "use");
    const bool isAnchor = IsOneOf(element, "a");
    const bool isText = IsOneOf(element, "textPath tref");
    const Target* const target = Find(element, link,
                                      isUse      ? "nothing is drawn"
                                      : isText   ? "the text is left out"
                                      : isAnchor ? "the link leads nowhere"
                                                 : "only what the element itself says counts");
    if (target != nullptr && isUse) {
        IsValid(element, link.substr(1), *target);
    }
}

void ZAMPrintSVGPreflightReferences::CheckFill(const ZAMLightXmlElementItf& element, std::string_view value) {
    const auto link = ZAMPrintSVGLinkText::Read(value);
    if (!link) {
        return;
    }
    if (_Mode == Mode::AsItStands && link->IsLocal() && !link->isPlain) {
        _Report.Add(Fault::ValueNotUnderstood, element, "fill", value);
        return;
    }
    if (link->hasFallback && (!link->IsLocal() || _Ids.Find(link->GetId()) == nullptr)) {
        return; // the document itself says what to do
    }
    Target* const target = Find(element, link->target,
                                _Mode == Mode::Prepared ? "it is not filled" : "the colour in force before is taken");
    if (target != nullptr) {
        CheckFillTarget(element, link->GetId(), *target);
    }
}

void ZAMPrintSVGPreflightReferences::CheckFillTarget(const ZAMLightXmlElementItf& element, std::string_view id,
                                                     Target& target) {
    const bool isGradient = IsOneOf(target.element, "linearGradient radialGradient");
    if (!isGradient && !IsOneOf(target.element, "pattern")) {
        _Report.Add(Fault::WrongReference, element, id, "fill");
        return;
    }
    if (_Mode == Mode::Prepared) {
        return;
    }
    if (isGradient) {
        _Report.Add(Fault::FillGradient, element, id);
        return;
    }
    if (!target.hasPicture) {
        target.hasPicture = HasPicture(target.element);
    }
    if (!*target.hasPicture) {
        _Report.Add(Fault::VectorPattern, element, id);
    } else {
        IsValid(element, id, target);
    }
}

void ZAMPrintSVGPreflightReferences::CheckStroke(const ZAMLightXmlElementItf& element, std::string_view value) {
    const auto link = ZAMPrintSVGLinkText::Read(value);
    if (!link) {
        return;
    }
    if (_Mode == Mode::AsItStands) {
        _Report.Add(Fault::StrokePaint, element, link->GetSubject());
        return;
    }
    if (link->hasFallback && (!link->IsLocal() || _Ids.Find(link->GetId()) == nullptr)) {
        return;
    }
    const Target* const target = Find(element, link->target, "it has no stroke");
    if (target == nullptr) {
        return;
    }
    if (!IsOneOf(target->element, "linearGradient radialGradient pattern")) {
        _Report.Add(Fault::WrongReference, element, link->GetId(), "stroke");
    } else if (IsOneOf(element, "text tspan textPath tref")) {
        _Report.Add(Fault::TextStrokePaint, element, link->GetId());
    }
}

void ZAMPrintSVGPreflightReferences::CheckMarker(const ZAMLightXmlElementItf& element, std::string_view property,
                                                 std::string_view value) {
    const auto link = ZAMPrintSVGLinkText::Read(value);
    const Target* const target = link ? Find(element, link->target, "there is no marker") : nullptr;
    if (target == nullptr) {
        return;
    }
    if (!IsOneOf(target->element, "marker")) {
        _Report.Add(Fault::WrongReference, element, link->GetId(), property);
    } else {
        IsValid(element, link->GetId(), *target);
    }
}

void ZAMPrintSVGPreflightReferences::CheckClipPath(const ZAMLightXmlElementItf& element, std::string_view value) {
    const auto link = ZAMPrintSVGLinkText::Read(value);
    if (!link) {
        _Report.Add(Fault::UnknownProperty, element, "clip-path");
        return;
    }
    if (_Mode == Mode::AsItStands) {
        _Report.Add(Fault::ClipPath, element, link->GetSubject());
        return;
    }
    Target* const target = Find(element, link->target, "all is shown");
    if (target == nullptr) {
        return;
    }
    if (!IsOneOf(target->element, "clipPath")) {
        _Report.Add(Fault::WrongReference, element, link->GetId(), "clip-path");
        return;
    }
    if (!target->isRectangle) {
        target->isRectangle = ZAMPrintSVGClipShape(_Ids).IsRectangle(target->element);
    }
    if (!*target->isRectangle) {
        _Report.Add(Fault::ClipShape, element, link->GetId());
    }
}
