// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMTextCompare.h"

#include <span>
#include <string_view>

/// A keyword of a property and what it stands for.
template <class Code> struct ZAMPrintSVGKeyword {
    std::string_view name;
    Code code;
};

/// The first keyword that matches the value, letter case aside, or null.
template <class Code, std::size_t count>
const ZAMPrintSVGKeyword<Code>* ZAMPrintSVGFindKeyword(const ZAMPrintSVGKeyword<Code> (&keywords)[count],
                                                       std::string_view value) {
    for (const ZAMPrintSVGKeyword<Code>& keyword : keywords) {
        if (ZAMTextMatches(keyword.name, value)) {
            return &keyword;
        }
    }
    return nullptr;
}
