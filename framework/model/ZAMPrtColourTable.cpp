// SPDX-License-Identifier: MIT
#include "framework/model/ZAMPrtColourTable.h"

namespace {

constexpr std::size_t kFewestSlots = 16;

constexpr std::size_t HashOf(const ZAMPrtColourTable::Colour& colour) {
    const std::uint32_t key = std::uint32_t{colour.red} << 16U | std::uint32_t{colour.green} << 8U | colour.blue;
    const std::uint32_t mixed = key * 0x9E3779B1U; // 2^32 by the golden ratio, whose high bits depend on all of the key
    return mixed ^ mixed >> 15U;
}

} // namespace

std::size_t ZAMPrtColourTable::FindSlot(const Colour& colour) const {
    const std::size_t mask = _Slots.size() - 1;
    std::size_t slot = HashOf(colour) & mask;
    while (_Slots[slot] != 0 && _Colours[_Slots[slot] - 1] != colour) {
        slot = (slot + 1) & mask;
    }
    return slot;
}

void ZAMPrtColourTable::Grow() {
    std::vector<std::uint32_t> slots(_Slots.empty() ? kFewestSlots : 2 * _Slots.size());
    slots.swap(_Slots);
    for (const std::uint32_t used : slots) {
        if (used != 0) {
            _Slots[FindSlot(_Colours[used - 1])] = used;
        }
    }
}

int ZAMPrtColourTable::FindColour(unsigned int& index, unsigned char red, unsigned char green,
                                  unsigned char blue) const {
    const std::uint32_t first = _Slots.empty() ? 0 : _Slots[FindSlot({red, green, blue})];
    if (first == 0) {
        return 0;
    }
    index = first - 1;
    return 1;
}

int ZAMPrtColourTable::AddColour(unsigned char red, unsigned char green, unsigned char blue, unsigned int& index) {
    if (2 * (_UsedSlots + 1) >= _Slots.size()) {
        Grow();
    }
    const Colour colour{red, green, blue};
    const std::size_t slot = FindSlot(colour);
    _Colours.push_back(colour);
    index = static_cast<unsigned int>(_Colours.size() - 1);
    if (_Slots[slot] == 0) {
        _Slots[slot] = index + 1;
        ++_UsedSlots;
    }
    return 1;
}
