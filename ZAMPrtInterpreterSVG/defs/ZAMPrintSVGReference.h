// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMTextCompare.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

/// An id as it is looked up: letter case aside, and hashed once, however often it is used.
class ZAMPrintSVGReference {
public:
    explicit ZAMPrintSVGReference(std::string_view id)
        : _Folded(ZAMFoldText(id)), _Hash(std::hash<std::string_view>()(_Folded)) {}

    [[nodiscard]] bool Matches(std::string_view id) const { return ZAMTextMatches(_Folded, id); }
    bool operator==(const ZAMPrintSVGReference& other) const {
        return _Hash == other._Hash && _Folded == other._Folded;
    }

    struct Hash {
        std::size_t operator()(const ZAMPrintSVGReference& reference) const { return reference._Hash; }
    };

private:
    std::string _Folded;
    std::size_t _Hash;
};
