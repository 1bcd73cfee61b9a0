// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoDestinations.h"

#include <utility>

bool ZAMPrintCairoDestinations::Add(std::string_view name, std::size_t& number) {
    Destination& destination = Find(name);
    number = destination.number;
    return !std::exchange(destination.isAdded, true);
}

ZAMPrintCairoDestinations::Destination& ZAMPrintCairoDestinations::Find(std::string_view name) {
    return _Destinations.emplace(name, Destination{_Destinations.size(), false}).first->second;
}
