// SPDX-License-Identifier: MIT
#pragma once

#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightFonts.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightReferences.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightReport.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGVocabulary.h"

#include <set>
#include <string>
#include <utility>

/// Looks at the properties of elements: presentation attributes, style attributes, style sheets.
class ZAMPrintSVGPreflightProperties {
    /// What elements inherit, as far as findings depend on it; what style sheets say does not count.
    struct Paint {
        bool isFilled = true;
        bool isStroked = false;
        bool isMitred = true;
        std::string miterLimit = "4";
    };

public:
    using Mode = ZAMPrintSVGPreflight::Mode;

    /// Borrows all but the mode.
    ZAMPrintSVGPreflightProperties(Mode mode, ZAMPrintSVGPreflightReferences& references,
                                   ZAMPrintSVGPreflightFonts& fonts, ZAMPrintSVGPreflightReport& report)
        : _Mode(mode), _References(references), _Fonts(fonts), _Report(report) {}

    /// A presentation attribute; those of an element come before its style, which wins.
    void CheckAttribute(const ZAMLightXmlElementItf& element, std::string_view property, std::string_view value);
    /// The declarations of a style attribute, or of a rule in the sheet that the element holds.
    void CheckStyle(const ZAMLightXmlElementItf& element, std::string_view declarations);
    void CheckSheet(const ZAMLightXmlElementItf& element);
    /// What shapes make of all that was set on them and around them.
    void CheckPaint(const ZAMLightXmlElementItf& element, std::string_view name);

    /// What is set while it lives ends with it.
    class PaintScope {
    public:
        explicit PaintScope(ZAMPrintSVGPreflightProperties& properties)
            : _Properties(properties), _Inherited(properties._Paint) {}
        PaintScope(const PaintScope&) = delete;
        PaintScope& operator=(const PaintScope&) = delete;
        ~PaintScope() { _Properties._Paint = std::move(_Inherited); }

    private:
        ZAMPrintSVGPreflightProperties& _Properties;
        Paint _Inherited;
    };

private:
    enum class Form { Attribute, Style };

    void CheckProperty(const ZAMLightXmlElementItf& element, std::string_view property, std::string_view value,
                       Form form);
    void NotePaint(std::string_view property, std::string_view value);
    [[nodiscard]] bool CheckEffect(const ZAMLightXmlElementItf& element, std::string_view property,
                                   std::string_view value);
    [[nodiscard]] bool CheckForm(const ZAMLightXmlElementItf& element, std::string_view property,
                                 std::string_view value, Form form);
    void CheckPropertyValue(const ZAMLightXmlElementItf& element, std::string_view property, std::string_view value);

    Mode _Mode;
    ZAMPrintSVGPreflightReferences& _References;
    ZAMPrintSVGPreflightFonts& _Fonts;
    ZAMPrintSVGPreflightReport& _Report;
    Paint _Paint;
    std::set<std::string> _MiterLimits; ///< that were told of; each once, for they are found on shape after shape
};
