// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressElement.h"

#include <algorithm>

/// Whether the element or one below it, to any depth, is such a one. Quick: rewrites ask before they prepare anything.
template <class Predicate>
[[nodiscard]] bool ZAMPrepressHasAny(const ZAMPrepressElement& element, const Predicate& isSuch) {
    return isSuch(element) || std::ranges::any_of(element.children, [&](const ZAMPrepressElement* child) {
               return ZAMPrepressHasAny(*child, isSuch);
           });
}
