// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"

#include <atomic>

/// The reference-counted base object. A new object has one reference, which belongs to its creator; the last Release
/// destroys it. Counting is atomic, so objects may be shared by several threads; what they hold is not guarded.
class ZAM_EXPORT ZAMBaseUnknown {
public:
    ZAMBaseUnknown& operator=(const ZAMBaseUnknown&) = delete;

    /// Takes a reference; returns the new count.
    unsigned int AddRef() const noexcept { return _ReferenceCount.fetch_add(1, std::memory_order_relaxed) + 1; }

    /// Gives a reference back; returns the new count. At 0 the object is gone.
    unsigned int Release() const noexcept;

    [[nodiscard]] unsigned int GetReferenceCount() const noexcept {
        return _ReferenceCount.load(std::memory_order_relaxed);
    }

protected:
    ZAMBaseUnknown() noexcept = default;
    /// A copy is a new object with a count of its own.
    ZAMBaseUnknown(const ZAMBaseUnknown& /*other*/) noexcept {}
    virtual ~ZAMBaseUnknown();

private:
    mutable std::atomic<unsigned int> _ReferenceCount{1};
};
