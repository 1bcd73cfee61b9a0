// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressGradient.h"

#include "prepress/paint/ZAMPrepressRamps.h"

#include <algorithm>
#include <cmath>

namespace {

using Percentage = ZAMPrepressServer::Percentage;

// A focus on the circle would make all colours meet in it. Of the circle's radius.
constexpr double kFarthestFocus = 0.999;

// The first element that has stops; null when there is none.
const ZAMPrepressElement* FindStops(const ZAMPrepressServer& server) {
    const auto elements = server.GetElements();
    const auto found = std::ranges::find_if(
        elements, [](const ZAMPrepressElement* element) { return ZAMPrepressRamps::HasStops(*element); });
    return found == elements.end() ? nullptr : *found;
}

ZAMPrepressSpread ReadSpread(std::string_view text) {
    if (text == "repeat") {
        return ZAMPrepressSpread::Repeat;
    }
    return text == "reflect" ? ZAMPrepressSpread::Reflect : ZAMPrepressSpread::Pad;
}

void ReadVector(const ZAMPrepressServer& server, ZAMPrepressGradient& gradient) {
    const auto read = [&](std::string_view name, Percentage percentage, std::string_view initial) {
        return server.GetLength(name, percentage, gradient.isOfBox, initial);
    };
    gradient.start = {read("x1", Percentage::OfWidth, "0%"), read("y1", Percentage::OfHeight, "0%")};
    gradient.end = {read("x2", Percentage::OfWidth, "100%"), read("y2", Percentage::OfHeight, "0%")};
}

void ReadCircle(const ZAMPrepressServer& server, ZAMPrepressGradient& gradient) {
    const auto read = [&](std::string_view name, Percentage percentage, std::string_view initial = "50%") {
        return server.GetLength(name, percentage, gradient.isOfBox, initial);
    };
    gradient.end = {read("cx", Percentage::OfWidth), read("cy", Percentage::OfHeight)};
    gradient.radius = read("r", Percentage::OfDiagonal);
    const double farthest = kFarthestFocus * std::max(0.0, gradient.radius);
    gradient.focalRadius = std::clamp(read("fr", Percentage::OfDiagonal, "0%"), 0.0, farthest);
    gradient.start = {server.Get("fx").empty() ? gradient.end.x : read("fx", Percentage::OfWidth),
                      server.Get("fy").empty() ? gradient.end.y : read("fy", Percentage::OfHeight)};
    const double x = gradient.start.x - gradient.end.x;
    const double y = gradient.start.y - gradient.end.y;
    const double distance = std::hypot(x, y);
    if (distance > farthest - gradient.focalRadius) {
        const double share = (farthest - gradient.focalRadius) / distance;
        gradient.start = {gradient.end.x + x * share, gradient.end.y + y * share};
    }
}

} // namespace

std::optional<ZAMPrepressGradient> ZAMPrepressGradient::Read(const ZAMPrepressServer& server) {
    ZAMPrepressGradient gradient;
    const auto transform = server.GetTransform("gradientTransform");
    gradient.stops = FindStops(server);
    if (!transform || gradient.stops == nullptr) {
        return std::nullopt;
    }
    gradient.transform = *transform;
    gradient.isRadial = server.GetElements().front()->Is("radialGradient");
    gradient.isOfBox = server.IsOfBox("gradientUnits", true);
    gradient.spread = ReadSpread(server.Get("spreadMethod"));
    if (gradient.isRadial) {
        ReadCircle(server, gradient);
        return gradient.radius < 0.0 ? std::nullopt : std::optional(gradient);
    }
    ReadVector(server, gradient);
    return gradient;
}
