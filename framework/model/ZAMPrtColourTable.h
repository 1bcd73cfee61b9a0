// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMBaseUnknown.h"
#include "framework/base/ZAMExport.h"

#include <cstddef>
#include <cstdint>
#include <span>
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
    // Places in the list are counted from 1 here; 0 is the end of a chain.
    [[nodiscard]] std::uint32_t FindFirst(const Colour& colour) const;
    void Link(std::uint32_t first);
    void Grow();

    std::vector<Colour> _Colours;
    std::vector<std::uint32_t> _Next;   // for each colour, the one that follows it in its chain
    std::vector<std::uint32_t> _Chains; // first places by the hash of their colour; a power of two, as many as colours
};
