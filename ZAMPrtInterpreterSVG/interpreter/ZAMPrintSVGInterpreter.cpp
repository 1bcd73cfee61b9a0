// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVGInterpreter.h"

#include "framework/print/ZAMPrintModelRender.h"

#include <new>

ZAMPrintSVGInterpreter::ZAMPrintSVGInterpreter(std::istream* stream)
    : ZAMPrintInterpreter("SVG"), _Decoder(new (std::nothrow) ZAMPrintSVG2Interpreter(stream)) {}

ZAMPrintSVGInterpreter::ZAMPrintSVGInterpreter(const ZAMLightXmlElementItf* element)
    : ZAMPrintInterpreter("SVG"), _Decoder(new (std::nothrow) ZAMPrintSVG2Interpreter(element)) {}

ZAMPrintSVGInterpreter::~ZAMPrintSVGInterpreter() = default;

int ZAMPrintSVGInterpreter::SetCurrentPath(const ZAMUnicodeString& path) {
    return _Decoder ? _Decoder->SetCurrentPath(path) : 0;
}

// The model stays whatever the decode gave: a decode that failed is not tried again, its model is drawn as it is.
int ZAMPrintSVGInterpreter::BuildModel() {
    if (!_Decoder) {
        return 0;
    }
    if (_CachedModel) {
        return 1;
    }
    _CachedModel = ZAMNew<ZAMPrtModel>();
    if (!_CachedModel) {
        return 0;
    }
    if (_OriginAtBottom) {
        _Decoder->_FlipToOriginDefault = true;
    }
    ZAMPrintSVGModelDriver driver(_CachedModel.Get());
    return _Decoder->Decode(&driver);
}

int ZAMPrintSVGInterpreter::GetSize(float& width, float& height) {
    const int result = BuildModel();
    if (result != 0 && !_CachedModel->GetImages().empty()) {
        const ZAMMathVector2D& size = _CachedModel->GetImages().front()->GetSize();
        width = static_cast<float>(size.x);
        height = static_cast<float>(size.y);
    }
    return result;
}

int ZAMPrintSVGInterpreter::Decode(ZAMPrintGenerator* generator, const ZAMPrintParameters& parameters) {
    const int result = BuildModel();
    return result == 1 ? ZAMPrintModelRender(_CachedModel.Get(), generator, parameters).Draw() : result;
}
