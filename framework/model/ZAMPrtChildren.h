// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/base/ZAMLimits.h"
#include "framework/base/ZAMRef.h"
#include "framework/model/ZAMPrtGraphicPrimitiveElt.h"

#include <vector>

/// The ordered children of a container.
class ZAM_EXPORT ZAMPrtChildren {
public:
    /// Appends `child` to the children of `owner` and takes a reference. Ignores null, the owner itself, a child whose
    /// subtree holds the owner, and a child whose subtree is more than ZAMLimits::kModelHeight high (a lone element is
    /// 1 high). The same child may be added more than once; what was attached before costs the thread's
    /// ZAMAllocationBudget what its subtree costs, and is ignored when that is too much.
    void Add(const ZAMPrtGraphicPrimitiveElt& owner, ZAMPrtGraphicPrimitiveElt* child);
    /// Removes the first occurrence of `child` and gives its reference back; ignores what is not a child.
    void Remove(const ZAMPrtGraphicPrimitiveElt* child);
    /// Replaces every child by a copy of its own; those that cannot be copied are left out.
    void Own();

    [[nodiscard]] ZAMPrtChildSpan GetSpan() const { return _Children; }

private:
    std::vector<ZAMRef<ZAMPrtGraphicPrimitiveElt>> _Children;
};
