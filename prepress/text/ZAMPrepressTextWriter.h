// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressTree.h"
#include "prepress/text/ZAMPrepressTextDecorations.h"
#include "prepress/text/ZAMPrepressTextRuns.h"

/// Makes of a text element one that the interpreter draws rightly, or a group of such.
class ZAMPrepressTextWriter {
public:
    ZAMPrepressTextWriter(ZAMPrepressTree& tree, ZAMPrepressElement& text) : _Tree(tree), _Text(text) {}

    /// Writes the runs, of which those without paint are dropped, into the text element.
    void Write(std::vector<ZAMPrepressTextRun>& runs, const ZAMPrepressTextStyles& styles);
    /// Makes it an empty one, when none of its characters are painted.
    void WriteNothing();

private:
    void WriteOne(const ZAMPrepressTextRun& run);
    void WriteGroup(const std::vector<ZAMPrepressTextRun>& runs, const ZAMPrepressTextDecorations& decorations);
    void Clear();
    // The element that the run is to stand in: the group, or a link in it.
    ZAMPrepressElement& AddLink(const ZAMPrepressTextRun& run, ZAMPrepressElement& group);
    void WriteRun(const ZAMPrepressTextRun& run, const ZAMPrepressElement& paint, ZAMPrepressElement& element);
    void SetFont(const ZAMPrepressTextRun& run, ZAMPrepressElement& element);
    void SetPlace(const ZAMPrepressTextRun& run, double indent, ZAMPrepressElement& element);
    void SetNumber(ZAMPrepressElement& element, std::string_view attribute, double number);

    ZAMPrepressTree& _Tree;
    ZAMPrepressElement& _Text;
};
