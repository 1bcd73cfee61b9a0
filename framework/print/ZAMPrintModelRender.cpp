// SPDX-License-Identifier: MIT
#include "framework/print/ZAMPrintModelRender.h"

#include "framework/print/ZAMPrintClipScope.h"
#include "framework/print/ZAMPrintDestinations.h"
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
        const std::vector<ZAMPrintPlacement> placements = PlaceImages();
        const ZAMPrintDestinations destinations(*_Model, placements);
        for (std::size_t page = 0; page < placements.size(); ++page) {
            if (DrawPage(page, placements[page], destinations) != 1) {
                return -1;
            }
        }
        return _Generator->EndDocument() == 1 ? 1 : -1;
    } catch (...) {
        return -1;
    }
}

std::vector<ZAMPrintPlacement> ZAMPrintModelRender::PlaceImages() const {
    std::vector<ZAMPrintPlacement> placements;
    for (const auto& image : _Model->GetImages()) {
        placements.push_back(ZAMPrintPlacement::Of(*image, _Parameters, _Generator->GetLargestPageSide()));
    }
    return placements;
}

int ZAMPrintModelRender::DrawPage(std::size_t page, const ZAMPrintPlacement& placement,
                                  const ZAMPrintDestinations& destinations) {
    if (_Generator->BeginPage(placement.pageWidth, placement.pageHeight) != 1) {
        return -1;
    }
    destinations.AddTo(*_Generator, page);
    {
        const ZAMPrintClipScope clip(*_Generator, placement.area, placement.toPage);
        ZAMPrintPageRender(*_Model->GetImages()[page], *_Generator, placement, destinations).Draw();
    }
    return _Generator->EndPage();
}
