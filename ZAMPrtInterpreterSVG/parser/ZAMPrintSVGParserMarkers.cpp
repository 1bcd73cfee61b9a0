// SPDX-License-Identifier: MIT
// The marker properties (SVG 1.1, 11.6.2), and the markers of a line.
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGParser.h"

#include <memory>

namespace {

using Reference = std::shared_ptr<const ZAMPrintSVGReference>;

// "none " with a blank ends a marker; whatever else is no reference is an id that nobody has.
Reference ToMarkerReference(std::string_view value) {
    ZAMUnicodeString id(ZAMTextMatches(value, "none ") ? std::string_view() : value);
    id.ReplaceSubString("url(#", "");
    id.ReplaceSubString(")", "");
    return id.IsEmpty() ? nullptr : std::make_shared<const ZAMPrintSVGReference>(id);
}

} // namespace

void ZAMPrintSVGParser::ReadMarker(std::string_view value, PendingPaint& /*pending*/) {
    if (!ZAMTextMatches(value, "inherit")) {
        _MarkerStartRef = _MarkerMidRef = _MarkerEndRef = ToMarkerReference(value);
    }
}

void ZAMPrintSVGParser::ReadMarkerStart(std::string_view value, PendingPaint& /*pending*/) {
    if (!ZAMTextMatches(value, "inherit")) {
        _MarkerStartRef = ToMarkerReference(value);
    }
}

void ZAMPrintSVGParser::ReadMarkerMid(std::string_view value, PendingPaint& /*pending*/) {
    if (!ZAMTextMatches(value, "inherit")) {
        _MarkerMidRef = ToMarkerReference(value);
    }
}

void ZAMPrintSVGParser::ReadMarkerEnd(std::string_view value, PendingPaint& /*pending*/) {
    if (!ZAMTextMatches(value, "inherit")) {
        _MarkerEndRef = ToMarkerReference(value);
    }
}

ZAMPrintSVGMarkers ZAMPrintSVGParser::FindMarkers() {
    ZAMPrintSVGMarkers markers;
    GetEltFromURI(_MarkerStartRef.get(), markers.start);
    GetEltFromURI(_MarkerMidRef.get(), markers.mid);
    GetEltFromURI(_MarkerEndRef.get(), markers.end);
    return markers;
}

void ZAMPrintSVGParser::AddLineMarker(const ZAMRef<ZAMPrtGraphicPrimitiveElt>& marker, const ZAMMathPoint2D& vertex,
                                      ZAMPrtGraphicPrimitiveElt* parent) const {
    const auto instance = marker ? ZAMNew<ZAMPrtGroupElt>() : ZAMRef<ZAMPrtGroupElt>();
    if (!instance) {
        return;
    }
    AddChildElt(parent, instance.Get());
    instance->AddChild(marker.Get());
    ZAMPrtTransformAttributes transform = instance->GetTransformAttributes();
    ZAMPrintSVGMarkers::AddVertex(transform, vertex, _FlipY, _ImageHeight);
    instance->SetTransformAttributes(transform);
}
