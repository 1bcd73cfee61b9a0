// SPDX-License-Identifier: MIT
#pragma once

#include "framework/print/ZAMPrintGenerator.h"
#include "framework/print/ZAMPrintParameters.h"
#include "tools/common/Document.h"
#include "tools/common/DocumentGenerator.h"
#include "tools/common/Options.h"

#include <functional>

/// Draws documents page by page with a generator.
class PagePrinter {
public:
    /// The generator is borrowed.
    PagePrinter(ZAMPrintGenerator& generator, const Options& options) : _Generator(generator), _Options(options) {}

    /// Draws each drawing as a page; only the first one when the format has no pages, which a message then says.
    /// `check` is called when a drawing was read and nothing of it is drawn yet, and throws if that is to stay so.
    /// False when the generator has failed.
    bool Print(const Document& document, const std::function<void()>& check);
    /// Whether there is anything on the pages.
    [[nodiscard]] bool HasMarks() const { return _Generator.HasMarks(); }
    /// Completes the output, once. False when the generator has failed.
    bool Finish() { return _Generator.Finish() == 1; }

private:
    [[nodiscard]] ZAMPrintParameters MakeParameters(const Document& document) const;
    bool PrintDrawing(const Document& document, const ZAMLightXmlElement& drawing, ZAMPrintParameters& parameters,
                      const std::function<void()>& check);
    void Tell(const std::string& text) const;
    void TellOfReduction(const Document& document, const ZAMPrintParameters& parameters) const;

    DocumentGenerator _Generator;
    const Options& _Options;
};
