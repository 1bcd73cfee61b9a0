// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMRef.h"
#include "ZAMPrtInterpreterSVG/defs/ZAMPrtDefsElt.h"

#include <cstddef>
#include <utility>
#include <vector>

/// Definitions in document order, indexed from 1; each with a reference that the list holds.
class ZAMListPtrZAMPrtDefsElt {
public:
    [[nodiscard]] std::size_t GetCount() const { return _Definitions.size(); }
    /// `position` is from 1 to the count.
    [[nodiscard]] ZAMPrtDefsElt& operator[](std::size_t position) const { return *_Definitions[position - 1]; }
    void Append(ZAMRef<ZAMPrtDefsElt> definition) { _Definitions.push_back(std::move(definition)); }
    /// The list is not empty.
    void RemoveLast() { _Definitions.pop_back(); }

private:
    std::vector<ZAMRef<ZAMPrtDefsElt>> _Definitions;
};
