// SPDX-License-Identifier: MIT
#pragma once

#include "framework/lightxml/ZAMLightXmlElement.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightReport.h"

#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

/// Reports families that a document asks for and that other fonts stand in for. The fonts of the machine are listed
/// only for documents with text.
class ZAMPrintSVGPreflightFonts {
public:
    /// Borrows the report.
    explicit ZAMPrintSVGPreflightFonts(ZAMPrintSVGPreflightReport& report) : _Report(report) {}

    /// The document has a text.
    void NoteText() { _HasText = true; }
    /// An element asks for a font by a list of families.
    void Note(const ZAMLightXmlElementItf& element, std::string_view families);
    /// To be called at the end of the document.
    void Check();

private:
    ZAMPrintSVGPreflightReport& _Report;
    bool _HasText = false;
    std::unordered_set<std::string> _Known;
    std::vector<std::pair<ZAMLightXmlElement, std::string>> _Asked; ///< each list once, where it stands first
};
