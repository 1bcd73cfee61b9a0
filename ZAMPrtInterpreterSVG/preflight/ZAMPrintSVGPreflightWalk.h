// SPDX-License-Identifier: MIT
#pragma once

#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightFonts.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightIds.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightPictures.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightProperties.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightReferences.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightReport.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGVocabulary.h"

/// Goes through a document as the interpreter does and looks at every element, attribute and declaration once.
class ZAMPrintSVGPreflightWalk {
public:
    using Mode = ZAMPrintSVGPreflight::Mode;

    /// Borrows the report.
    ZAMPrintSVGPreflightWalk(Mode mode, const ZAMUnicodeString& path, ZAMPrintSVGPreflightReport& report)
        : _Mode(mode), _Report(report), _Ids(mode), _References(mode, _Ids, report), _Pictures(mode, path, report),
          _Fonts(report), _Properties(mode, _References, _Fonts, report) {}

    /// False when the document holds no drawing.
    bool Check(const ZAMLightXmlElementItf& root);

private:
    /// Where an element stands.
    struct Place {
        ZAMPrintSVGVocabulary::Role role; ///< of the parent
        std::string_view parent;          ///< its name, as in the vocabulary
    };

    void Visit(const ZAMLightXmlElementItf& element, const Place& place);
    [[nodiscard]] const ZAMPrintSVGVocabulary::Element* FindRead(const ZAMLightXmlElementItf& element,
                                                                 const Place& place);
    [[nodiscard]] bool IsReadIn(const ZAMPrintSVGVocabulary::Element& row, const Place& place) const;
    void VisitChildren(const ZAMLightXmlElementItf& element, const ZAMPrintSVGVocabulary::Element& row,
                       const Place& place);
    void CheckAttributes(const ZAMLightXmlElementItf& element, std::string_view name);
    void CheckAttribute(const ZAMLightXmlElementItf& element, std::string_view name,
                        const ZAMLightXmlElementItf::Attribute& attribute);
    void CheckOwnAttribute(const ZAMLightXmlElementItf& element, std::string_view name,
                           const ZAMPrintSVGVocabulary::Attribute& row, std::string_view value);
    void CheckLinks(const ZAMLightXmlElementItf& element, std::string_view name);

    Mode _Mode;
    ZAMPrintSVGPreflightReport& _Report;
    ZAMPrintSVGPreflightIds _Ids;
    ZAMPrintSVGPreflightReferences _References;
    ZAMPrintSVGPreflightPictures _Pictures;
    ZAMPrintSVGPreflightFonts _Fonts;
    ZAMPrintSVGPreflightProperties _Properties;
};
