// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/model/ZAMPrtModel.h"
#include "framework/print/ZAMPrintGenerator.h"
#include "framework/print/ZAMPrintParameters.h"
#include "framework/print/ZAMPrintPlacement.h"

#include <cstddef>
#include <vector>

class ZAMPrintDestinations;

/// Draws a model: resolves what its elements hold into the marks of a generator. All three are borrowed and must
/// outlive the render; the model is only read, so several renders may draw it at once.
class ZAM_EXPORT ZAMPrintModelRender {
public:
    ZAMPrintModelRender(const ZAMPrtModel* model, ZAMPrintGenerator* generator, const ZAMPrintParameters& parameters)
        : _Model(model), _Generator(generator), _Parameters(parameters) {}

    /// Draws each image element of the model as a page, in order. 1 done; -1 without a model or generator, when the
    /// generator fails (it says why) or when memory is out. A model without images draws nothing, not even an empty
    /// document.
    int Draw();

private:
    [[nodiscard]] std::vector<ZAMPrintPlacement> PlaceImages() const;
    int DrawPage(std::size_t page, const ZAMPrintPlacement& placement, const ZAMPrintDestinations& destinations);

    const ZAMPrtModel* _Model;
    ZAMPrintGenerator* _Generator;
    const ZAMPrintParameters& _Parameters;
};
