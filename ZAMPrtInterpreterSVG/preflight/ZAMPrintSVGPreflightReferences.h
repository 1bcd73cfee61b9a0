// SPDX-License-Identifier: MIT
#pragma once

#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGLinkText.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightIds.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightReport.h"

/// Follows the references of elements and properties and reports those that lead nowhere, or to what cannot be drawn.
class ZAMPrintSVGPreflightReferences {
public:
    using Mode = ZAMPrintSVGPreflight::Mode;

    /// Borrows the ids and the report.
    ZAMPrintSVGPreflightReferences(Mode mode, ZAMPrintSVGPreflightIds& ids, ZAMPrintSVGPreflightReport& report)
        : _Mode(mode), _Ids(ids), _Report(report) {}

    /// The link of an element other than a picture; that of an anchor within the document.
    void CheckLink(const ZAMLightXmlElementItf& element, std::string_view link);
    /// Properties with a value that may be a reference.
    void CheckFill(const ZAMLightXmlElementItf& element, std::string_view value);
    void CheckStroke(const ZAMLightXmlElementItf& element, std::string_view value);
    void CheckMarker(const ZAMLightXmlElementItf& element, std::string_view property, std::string_view value);
    void CheckClipPath(const ZAMLightXmlElementItf& element, std::string_view value);

private:
    using Target = ZAMPrintSVGPreflightIds::Target;

    // The target of a reference; null, and a finding, when there is none. `without` is what happens then.
    Target* Find(const ZAMLightXmlElementItf& element, std::string_view link, std::string_view without);
    // Whether the interpreter finds the definition from here; a finding when it does not.
    bool IsValid(const ZAMLightXmlElementItf& element, std::string_view id, const Target& target);
    void CheckFillTarget(const ZAMLightXmlElementItf& element, std::string_view id, Target& target);

    Mode _Mode;
    ZAMPrintSVGPreflightIds& _Ids;
    ZAMPrintSVGPreflightReport& _Report;
};
