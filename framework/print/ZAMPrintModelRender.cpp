// SPDX-License-Identifier: MIT
#include "framework/print/ZAMPrintModelRender.h"

#include "framework/print/ZAMPrintPageRender.h"
#include "framework/print/ZAMPrintPlacement.h"

int ZAMPrintModelRender::Draw() {
    if (_Model == nullptr || _Generator == nullptr) {
        return -1;
    }
    if (_Model->GetImages().empty()) {
        return 1;
    }
    try {
        if (_Generator->BeginDocument(_Parameters) != 1) {
            return -1;
        }
        for (const auto& image : _Model->GetImages()) {
            if (DrawImage(*image) != 1) {
                return -1;
            }
        }
        return _Generator->EndDocument() == 1 ? 1 : -1;
    } catch (...) {
        return -1;
    }
}

int ZAMPrintModelRender::DrawImage(const ZAMPrtImageElt& image) {
    const auto placement = ZAMPrintPlacement::Of(image, _Parameters, _Generator->GetLargestPageSide());
    if (_Generator->BeginPage(placement.pageWidth, placement.pageHeight) != 1) {
        return -1;
    }
    _Generator->PushClip(placement.area, placement.toPage);
    ZAMPrintPageRender(image, *_Generator, placement).Draw();
    _Generator->PopClip();
    return _Generator->EndPage();
}
