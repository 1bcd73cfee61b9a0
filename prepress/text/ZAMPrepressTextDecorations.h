// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressTree.h"
#include "prepress/text/ZAMPrepressTextRuns.h"

#include <vector>

/// The lines under, over and through texts (SVG 1.1, 10.12) as rectangles, painted as the element is that asks for
/// them. Lines of runs that follow one another are one.
class ZAMPrepressTextDecorations {
public:
    ZAMPrepressTextDecorations(ZAMPrepressTree& tree, const ZAMPrepressTextStyles& styles)
        : _Tree(tree), _Styles(styles) {}

    /// The lines that the run has.
    void Add(ZAMPrepressTextRun& run);

    [[nodiscard]] bool IsEmpty() const { return _Lines.empty(); }
    /// Appends those that lie below the characters, or those above them.
    void Draw(ZAMPrepressElement& group, bool areAbove) const;

private:
    struct Line {
        const ZAMPrepressTextSpan* span;
        std::size_t kind;
        ZAMMathPoint2D origin; ///< its left end and middle
        ZAMMathVector2D direction;
        double length;
        double thickness;
    };

    void Add(const ZAMPrepressTextSpan& span, std::size_t kind, ZAMPrepressTextRun& run);
    void Add(const Line& line);

    ZAMPrepressTree& _Tree;
    const ZAMPrepressTextStyles& _Styles;
    std::vector<Line> _Lines;
};
