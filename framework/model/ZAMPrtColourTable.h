// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMBaseUnknown.h"
#include "framework/base/ZAMExport.h"

#include <cstdint>
#include <span>
#include <unordered_map>
#include <vector>

/// The colours of an image element, numbered from 0 in the order in which they were added.
class ZAM_EXPORT ZAMPrtColourTable : public ZAMBaseUnknown {
public:
    struct Colour {
        unsigned char red = 0;
        unsigned char green = 0;
        unsigned char blue = 0;
        bool operator==(const Colour&) const = default;
    };

    /// 1 and the first index with exactly this colour, or 0 and `index` as it was.
    int FindColour(unsigned int& index, unsigned char red, unsigned char green, unsigned char blue) const;
    /// Appends the colour, also one that is there already; 1 and its index.
    int AddColour(unsigned char red, unsigned char green, unsigned char blue, unsigned int& index);
    /// The colour at `index`, or null when the table has no such index.
    [[nodiscard]] const Colour* GetColour(unsigned int index) const {
        return index < _Colours.size() ? &_Colours[index] : nullptr;
    }
    [[nodiscard]] std::span<const Colour> GetColours() const { return _Colours; }

private:
    std::vector<Colour> _Colours;
    std::unordered_map<std::uint32_t, unsigned int> _FirstIndex; // by 0xRRGGBB
};
