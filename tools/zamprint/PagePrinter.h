// SPDX-License-Identifier: MIT
#pragma once

#include "framework/print/ZAMPrintGenerator.h"
#include "framework/print/ZAMPrintParameters.h"
#include "tools/zamprint/Document.h"
#include "tools/zamprint/DocumentGenerator.h"
#include "tools/zamprint/Options.h"

/// Draws documents page by page with a generator.
class PagePrinter {
public:
    /// The generator is borrowed.
    PagePrinter(ZAMPrintGenerator& generator, const Options& options) : _Generator(generator), _Options(options) {}

    /// Draws each drawing as a page; only the first one when the format has no pages, which a message then says. False
    /// when the generator has failed.
    bool Print(const Document& document);
    /// Completes the output, once. False when the generator has failed.
    bool Finish() { return _Generator.Finish() == 1; }

private:
    bool PrintDrawing(const Document& document, const ZAMLightXmlElement& drawing, ZAMPrintParameters& parameters);
    void TellOfReduction(const Document& document, const ZAMPrintParameters& parameters) const;

    DocumentGenerator _Generator;
    const Options& _Options;
};
