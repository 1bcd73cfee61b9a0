// SPDX-License-Identifier: MIT
#include "framework/base/ZAMBaseUnknown.h"

ZAMBaseUnknown::~ZAMBaseUnknown() = default;

unsigned int ZAMBaseUnknown::Release() const noexcept {
    const unsigned int left = _ReferenceCount.fetch_sub(1, std::memory_order_acq_rel) - 1;
    if (left == 0) {
        delete this;
    }
    return left;
}
