// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressRamps.h"

#include "prepress/geometry/ZAMPrepressLength.h"
#include "prepress/paint/ZAMPrepressSolidPaint.h"

#include <algorithm>

namespace {

bool IsStop(const ZAMPrepressElement* element) {
    return element->Is("stop");
}

std::vector<ZAMPrepressStop> ReadStops(const ZAMPrepressElement& gradient) {
    std::vector<ZAMPrepressStop> stops;
    for (const ZAMPrepressElement* child : gradient.children) {
        if (IsStop(child)) {
            stops.push_back({ZAMPrepressReadLength(child->Get("offset"), {1.0}).value_or(0.0),
                             ZAMPrepressReadHexColour(child->Get("stop-color")),
                             ZAMPrepressReadLength(child->Get("stop-opacity"), {1.0}).value_or(1.0)});
        }
    }
    return stops;
}

std::string MakeKey(std::span<const ZAMPrepressStop> stops, ZAMPrepressSpread spread) {
    std::string key = std::to_string(static_cast<int>(spread));
    for (const ZAMPrepressStop& stop : stops) {
        for (const double number : {stop.offset, static_cast<double>(stop.colour), stop.opacity}) {
            key += ' ';
            ZAMPrepressAppendNumber(key, number);
        }
    }
    return key;
}

} // namespace

bool ZAMPrepressRamps::HasStops(const ZAMPrepressElement& element) {
    return std::ranges::any_of(element.children, IsStop);
}

const ZAMPrepressRamps::Numbered& ZAMPrepressRamps::Find(const ZAMPrepressElement& element, ZAMPrepressSpread spread) {
    const Numbered*& found = _ByElement[&element].at(static_cast<std::size_t>(spread));
    if (found == nullptr) {
        found = &FindEqual(ReadStops(element), spread);
    }
    return *found;
}

const ZAMPrepressRamps::Numbered& ZAMPrepressRamps::FindEqual(std::span<const ZAMPrepressStop> stops,
                                                              ZAMPrepressSpread spread) {
    const auto [place, isNew] = _ByColours.try_emplace(MakeKey(stops, spread));
    if (isNew) {
        place->second = {std::make_shared<const ZAMPrepressRamp>(stops, spread), _ByColours.size()};
    }
    return place->second;
}
