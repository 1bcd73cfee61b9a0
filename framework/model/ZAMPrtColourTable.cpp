// SPDX-License-Identifier: MIT
#include "framework/model/ZAMPrtColourTable.h"

namespace {

constexpr std::uint32_t Key(unsigned char red, unsigned char green, unsigned char blue) {
    return std::uint32_t{red} << 16U | std::uint32_t{green} << 8U | blue;
}

} // namespace

int ZAMPrtColourTable::FindColour(unsigned int& index, unsigned char red, unsigned char green,
                                  unsigned char blue) const {
    const auto found = _FirstIndex.find(Key(red, green, blue));
    if (found == _FirstIndex.end()) {
        return 0;
    }
    index = found->second;
    return 1;
}

int ZAMPrtColourTable::AddColour(unsigned char red, unsigned char green, unsigned char blue, unsigned int& index) {
    index = static_cast<unsigned int>(_Colours.size());
    _Colours.push_back({red, green, blue});
    _FirstIndex.try_emplace(Key(red, green, blue), index);
    return 1;
}
