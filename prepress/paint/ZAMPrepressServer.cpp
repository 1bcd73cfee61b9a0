// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressServer.h"

#include "framework/base/ZAMLimits.h"
#include "prepress/geometry/ZAMPrepressTransform.h"

#include <algorithm>

namespace {} // namespace

ZAMPrepressServer::ZAMPrepressServer(ZAMPrepressElement& element, const ZAMPrepressIds& ids,
                                     const ZAMPrepressViewportSize& viewport)
    : _Viewport(viewport) {
    ZAMPrepressElement* next = &element;
    while (next != nullptr && IsServer(*next) && IsGradient(*next) == IsGradient(element) &&
           _Elements.size() < ZAMLimits::kChainOfServers && std::ranges::find(_Elements, next) == _Elements.end()) {
        _Elements.push_back(next);
        next = ids.FindLink(next->Get("xlink:href"));
    }
}

bool ZAMPrepressServer::IsServer(const ZAMPrepressElement& element) {
    return IsGradient(element) || element.Is("pattern");
}

bool ZAMPrepressServer::IsGradient(const ZAMPrepressElement& element) {
    return element.Is("linearGradient") || element.Is("radialGradient");
}

std::string_view ZAMPrepressServer::Get(std::string_view attribute) const {
    const auto found =
        std::ranges::find_if(_Elements, [&](const ZAMPrepressElement* element) { return element->Has(attribute); });
    return found == _Elements.end() ? std::string_view() : (*found)->Get(attribute);
}

bool ZAMPrepressServer::IsOfBox(std::string_view attribute, bool initially) const {
    const std::string_view value = Get(attribute);
    return value == "objectBoundingBox" || (initially && value != "userSpaceOnUse");
}

std::optional<ZAMMathAffine2D> ZAMPrepressServer::GetTransform(std::string_view attribute) const {
    const auto map = ZAMPrepressReadTransform(Get(attribute));
    return map && map->IsFinite() && map->Linear().IsInvertible() ? map : std::nullopt;
}

double ZAMPrepressServer::GetLength(std::string_view attribute, Percentage percentage, bool isOfBox,
                                    std::string_view initial) const {
    ZAMPrepressLengthBase base{1.0};
    if (!isOfBox) {
        base.whole = percentage == Percentage::OfWidth    ? _Viewport.width
                     : percentage == Percentage::OfHeight ? _Viewport.height
                                                          : _Viewport.GetDiagonal();
    }
    const auto length = ZAMPrepressReadLength(Get(attribute), base);
    return length ? *length : ZAMPrepressReadLength(initial, base).value_or(0.0);
}
