// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressTree.h"

#include <map>
#include <set>
#include <string>
#include <string_view>

/// Draws the SVG documents that images show.
class ZAMPrepressPictureDocuments {
public:
    explicit ZAMPrepressPictureDocuments(ZAMPrepressTree& tree) : _Tree(tree) {}

    /// Makes a group of the image, with the document's drawing in the image's place. The drawing has been through the
    /// rewrites that come before that of the pictures; its ids are like no others. False, and the image as it was, when
    /// the document cannot be read. Documents that are drawn again, known by where their bytes are, are charged to the
    /// thread's ZAMAllocationBudget.
    bool Draw(ZAMPrepressElement& image, std::string_view document);

private:
    ZAMPrepressElement* FindDrawing(const ZAMPrepressElement& image, std::string_view document);
    ZAMPrepressElement* ReadDrawing(const ZAMPrepressElement& image, std::string_view document);

    ZAMPrepressTree& _Tree;
    std::map<std::string, ZAMPrepressElement*> _Drawings; // by document and place; null for those that cannot be read
    std::set<const char*> _Known;                         // documents
};
