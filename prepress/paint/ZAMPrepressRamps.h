// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressElement.h"
#include "prepress/paint/ZAMPrepressRamp.h"

#include <array>
#include <memory>
#include <string>
#include <unordered_map>

/// The ramps of a document's gradients. Those with the same colours are one, and so each gradient element is read once,
/// however many others take over its stops.
class ZAMPrepressRamps {
public:
    struct Numbered {
        std::shared_ptr<const ZAMPrepressRamp> ramp;
        std::size_t number = 0; ///< no other has it
    };

    /// The ramp of the stops of an element that has some.
    const Numbered& Find(const ZAMPrepressElement& element, ZAMPrepressSpread spread);

    /// Whether a gradient element has stops of its own.
    [[nodiscard]] static bool HasStops(const ZAMPrepressElement& element);

private:
    const Numbered& FindEqual(std::span<const ZAMPrepressStop> stops, ZAMPrepressSpread spread);

    std::unordered_map<std::string, Numbered> _ByColours;
    std::unordered_map<const ZAMPrepressElement*, std::array<const Numbered*, 3>> _ByElement; // a place for each spread
};
