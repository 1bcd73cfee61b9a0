// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathBox2D.h"
#include "prepress/document/ZAMPrepressIds.h"
#include "prepress/geometry/ZAMPrepressLength.h"

#include <vector>

/// Makes symbols of a size, whose content the interpreter clips.
class ZAMPrepressSymbols {
public:
    /// The tree as it stands decides whether the even-odd rule has to be kept through symbols.
    ZAMPrepressSymbols(ZAMPrepressTree& tree, ZAMPrepressIds& ids);

    /// Moves what the group holds into a symbol that shows the box and no more, and uses that in the group.
    void PutContentIntoSymbol(ZAMPrepressElement& group, const ZAMMathBox2D& box);

    /// Writes a leaf's attributes so that the interpreter reads in a symbol what it would read outside of one.
    void CompleteLeaf(ZAMPrepressElement& leaf);

private:
    ZAMPrepressTree& _Tree;
    ZAMPrepressIds& _Ids;
    bool _HasEvenOdd;
    std::vector<ZAMPrepressViewportSize> _Pages;
};
