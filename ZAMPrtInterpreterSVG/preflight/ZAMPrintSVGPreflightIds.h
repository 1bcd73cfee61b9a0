// SPDX-License-Identifier: MIT
#pragma once

#include "framework/lightxml/ZAMLightXmlElement.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflight.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// The elements that a document's references can lead to. As documents stand the interpreter finds definitions only,
/// and these from where they stand to the end of their group; Enter and Leave follow it through the document.
class ZAMPrintSVGPreflightIds {
public:
    /// The first element with an id.
    struct Target {
        ZAMLightXmlElement element;
        bool isDefinition = false; ///< it stands where the interpreter takes it as one
        bool wasSeen = false;      ///< the walk has come by
        int validCount = 0;        ///< definitions with this id that can be found now
        // What was found out about the element, kept so that it is looked at once however often it is referred to.
        std::optional<bool> hasPicture;
        std::optional<bool> isRectangle;
    };

    explicit ZAMPrintSVGPreflightIds(ZAMPrintSVGPreflight::Mode mode) : _Mode(mode) {}

    /// Takes the ids of an element and all below it. `isInDefs`: it stands directly below a defs element.
    void Index(const ZAMLightXmlElementItf& element, bool isInDefs = false);

    /// Null when nothing has the id. As documents stand letter case does not count.
    Target* Find(std::string_view id);

    /// The walk comes to an element.
    void Enter(const ZAMLightXmlElementItf& element, bool isInDefs);
    /// So many definitions are valid; handed to Leave at the end of the group.
    [[nodiscard]] std::size_t CountValid() const { return _Valid.size(); }
    void Leave(std::size_t count);

private:
    [[nodiscard]] std::string KeyOf(std::string_view id) const;

    ZAMPrintSVGPreflight::Mode _Mode;
    std::unordered_map<std::string, Target> _Targets;
    std::vector<Target*> _Valid;
};
