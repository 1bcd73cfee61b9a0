// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/base/ZAMUnicodeString.h"
#include "framework/lightxml/ZAMLightXmlElementItf.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Says of a document, before it is printed, what will not come out as it is drawn: what the interpreter does not read,
/// what it reads otherwise than SVG says, references that lead nowhere, pictures and fonts that cannot be had. It works
/// from the tables by which the interpreter itself works, and changes nothing.
///
/// Picture files are looked at as the thread's ZAMFileAccessPolicy allows. Time and memory are in proportion to the
/// document, its pictures included. No operation throws.
class ZAM_EXPORT ZAMPrintSVGPreflight {
public:
    /// What is done with the document before the interpreter reads it.
    enum class Mode : std::uint8_t {
        AsItStands, ///< nothing
        Prepared    ///< it is rewritten in the interpreter's own vocabulary; the document given here is the original
    };

    struct Finding {
        std::uint32_t line;    ///< of the element's start tag, from 1; 0 when unknown
        std::uint32_t column;  ///< likewise, in characters
        std::string_view code; ///< which kind of finding, in one word that stays the same: "unknown-element"
        std::string element;   ///< the element's name as written
        std::string subject;   ///< what it is about: an attribute, a property, an id, a file; may be empty
        std::string what;      ///< in words for a person
        std::string instead;   ///< what happens instead, likewise
    };

    /// So many findings of one code are kept; the rest are only counted.
    static constexpr std::size_t kMostOfAKind = 1000;

    explicit ZAMPrintSVGPreflight(Mode mode) : _Mode(mode) {}

    /// The path of the document's file, whose folder relative names start from. Always 1.
    int SetCurrentPath(const ZAMUnicodeString& path);

    /// Checks a document, given by its root: an `svg` element, or one whose children of that name are the drawings. 1
    /// done; 0 when there is no drawing; -1 when memory was out, and what was found until then stays.
    int Check(const ZAMLightXmlElementItf& root);

    /// What the last Check found, in the order of the document.
    [[nodiscard]] const std::vector<Finding>& GetFindings() const { return _Findings; }
    /// How many more there were.
    [[nodiscard]] std::size_t GetUnlistedCount() const { return _UnlistedCount; }

private:
    Mode _Mode;
    ZAMUnicodeString _CurrentPath;
    std::vector<Finding> _Findings;
    std::size_t _UnlistedCount = 0;
};
