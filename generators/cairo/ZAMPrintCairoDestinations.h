// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

/// Numbers for the destinations of a document's own links: cairo 1.16 writes names into a PDF as they are, so not all
/// of them would come out right.
class ZAMPrintCairoDestinations {
public:
    /// The number of the destination that a link leads to.
    [[nodiscard]] std::size_t NumberOf(std::string_view name) { return Find(name).number; }
    /// Adds a destination and gives its number; false when one of that name was added before.
    [[nodiscard]] bool Add(std::string_view name, std::size_t& number);

private:
    struct Destination {
        std::size_t number;
        bool isAdded;
    };

    [[nodiscard]] Destination& Find(std::string_view name);

    std::unordered_map<std::string, Destination> _Destinations;
};
