// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/base/ZAMRef.h"
#include "framework/print/ZAMPrintInterpreter.h"
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVG2Interpreter.h"

#include <istream>
#include <memory>

/// The print framework's interpreter for SVG documents. The model is built by the first GetSize or Decode and kept; the
/// document is never read twice. No operation throws.
class ZAM_EXPORT ZAMPrintSVGInterpreter : public ZAMPrintInterpreter {
public:
    /// As the constructors of ZAMPrintSVG2Interpreter.
    explicit ZAMPrintSVGInterpreter(std::istream* stream);
    explicit ZAMPrintSVGInterpreter(const ZAMLightXmlElementItf* element);
    ~ZAMPrintSVGInterpreter() override;

    /// Sets the path of the document's file. It counts only before the first GetSize or Decode. 1, or 0 when memory was
    /// out at construction.
    int SetCurrentPath(const ZAMUnicodeString& path);

    /// The size of the first page in user units, 90 to the inch; untouched when the document has no page. 1 done, -1
    /// when there was nothing to decode (the first call only: later ones find the empty model and give 1), 0 when
    /// memory is out.
    int GetSize(float& width, float& height) override;

    /// Draws the model. What the drawing gives: 1 done, -1 when the generator fails; or -1 or 0 as GetSize.
    int Decode(ZAMPrintGenerator* generator, const ZAMPrintParameters& parameters) override;

protected:
    /// Set by a derived class before the first GetSize or Decode: the document's lower left corner becomes the origin.
    bool _OriginAtBottom = false;

private:
    int BuildModel();

    std::unique_ptr<ZAMPrintSVG2Interpreter> _Decoder;
    ZAMRef<ZAMPrtModel> _CachedModel;
};
