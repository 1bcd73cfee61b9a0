// SPDX-License-Identifier: MIT
#include "framework/model/ZAMPrtColourTable.h"

namespace {

constexpr std::size_t kFewestChains = 16;
constexpr std::uint32_t kEnd = 0;

constexpr std::size_t HashOf(const ZAMPrtColourTable::Colour& colour) {
    const std::uint32_t key = std::uint32_t{colour.red} << 16U | std::uint32_t{colour.green} << 8U | colour.blue;
    const std::uint32_t mixed = key * 0x9E3779B1U; // 2^32 by the golden ratio, whose high bits depend on all of the key
    return mixed ^ mixed >> 15U;
}

} // namespace

// Chains and not open addressing: of the 2^24 colours only so many fall to one chain, whichever a document chooses.
std::uint32_t ZAMPrtColourTable::FindFirst(const Colour& colour) const {
    std::uint32_t first = _Chains.empty() ? kEnd : _Chains[HashOf(colour) & (_Chains.size() - 1)];
    while (first != kEnd && _Colours[first - 1] != colour) {
        first = _Next[first - 1];
    }
    return first;
}

void ZAMPrtColourTable::Link(std::uint32_t first) {
    std::uint32_t& chain = _Chains[HashOf(_Colours[first - 1]) & (_Chains.size() - 1)];
    _Next[first - 1] = chain;
    chain = first;
}

void ZAMPrtColourTable::Grow() {
    std::vector<std::uint32_t> chains(_Chains.empty() ? kFewestChains : 2 * _Chains.size(), kEnd);
    chains.swap(_Chains);
    for (std::uint32_t first : chains) {
        while (first != kEnd) {
            const std::uint32_t next = _Next[first - 1];
            Link(first);
            first = next;
        }
    }
}

int ZAMPrtColourTable::FindColour(unsigned int& index, unsigned char red, unsigned char green,
                                  unsigned char blue) const {
    const std::uint32_t first = FindFirst({red, green, blue});
    if (first == kEnd) {
        return 0;
    }
    index = first - 1;
    return 1;
}

int ZAMPrtColourTable::AddColour(unsigned char red, unsigned char green, unsigned char blue, unsigned int& index) {
    const Colour colour{red, green, blue};
    const bool isFirst = FindFirst(colour) == kEnd;
    if (_Colours.size() >= _Chains.size()) {
        Grow();
    }
    _Next.resize(_Colours.size() + 1, kEnd);
    _Colours.push_back(colour);
    index = static_cast<unsigned int>(_Colours.size() - 1);
    if (isFirst) {
        Link(index + 1);
    }
    return 1;
}
