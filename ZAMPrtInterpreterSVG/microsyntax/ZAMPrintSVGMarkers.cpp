// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGMarkers.h"

#include "framework/model/ZAMPrtAllElements.h"
#include "framework/model/ZAMPrtTypeList.h"
#include "ZAMPrtInterpreterSVG/defs/ZAMPrtDefsElt.h"

namespace {

using MarkerTargets =
    ZAMPrtTypeList<ZAMPrtClosedFigureRegionElt, ZAMPrtDefsElt, ZAMPrtGroupElt, ZAMPrtImageElt, ZAMPrtSymbolElt>;

} // namespace

void ZAMPrintSVGMarkers::AddVertex(ZAMPrtTransformAttributes& transform, const ZAMMathPoint2D& vertex, bool flipY,
                                   double imageHeight) {
    if (!flipY) {
        transform.AddTranslation({vertex.x, vertex.y});
        return;
    }
    transform.AddTranslation({0.0, imageHeight});
    transform.AddScaleY(-1.0);
    transform.AddTranslation({vertex.x, imageHeight - vertex.y});
    transform.AddTranslation({0.0, imageHeight});
    transform.AddScaleY(-1.0);
}

int ZAMPrintSVGMarkers::AddMarkers(const ZAMRawColldouble& vertices, bool flipY, double imageHeight,
                                   ZAMPrtGraphicPrimitiveElt* target) const {
    const std::size_t count = vertices.GetCount() / 2;
    const auto place = [&](const ZAMRef<ZAMPrtGraphicPrimitiveElt>& marker, std::size_t vertex) {
        const auto instance = marker ? ZAMNew<ZAMPrtGroupElt>() : ZAMRef<ZAMPrtGroupElt>();
        if (!instance) {
            return;
        }
        MarkerTargets::Visit(target, [&](auto& container) { container.AddChild(instance.Get()); });
        instance->AddChild(marker.Get());
        ZAMPrtTransformAttributes transform = instance->GetTransformAttributes();
        AddVertex(transform, {vertices[2 * vertex - 1], vertices[2 * vertex]}, flipY, imageHeight);
        instance->SetTransformAttributes(transform);
    };
    if (IsEmpty() || count < 1) {
        return 0;
    }
    place(start, 1);
    for (std::size_t vertex = 2; mid && vertex < count; ++vertex) {
        place(mid, vertex);
    }
    place(end, count);
    return 0;
}
