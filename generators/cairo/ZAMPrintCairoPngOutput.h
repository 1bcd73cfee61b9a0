// SPDX-License-Identifier: MIT
#pragma once

#include "generators/cairo/ZAMPrintCairoHandles.h"
#include "generators/cairo/ZAMPrintCairoOutput.h"

#include <optional>

/// PNG: one picture, the first page.
class ZAMPrintCairoPngOutput : public ZAMPrintCairoOutput {
public:
    explicit ZAMPrintCairoPngOutput(ZAMPrintCairoStream& stream)
        : ZAMPrintCairoOutput(stream, ZAMPrintCairoPictures::Fate::Painted) {}

    [[nodiscard]] double GetLargestPageSide() const override;
    void BeginDocument(const ZAMPrintParameters& parameters) override;
    [[nodiscard]] ZAMPrintCairoCanvas* BeginPage(double width, double height) override;
    void EndPage() override;
    void EndDocument() override;

private:
    double _Resolution = 0.0;
    ZAMPrintMetadata _Metadata;
    ZAMPrintCairoSurface _Surface;
    std::optional<ZAMPrintCairoCanvas> _Canvas;
    bool _HasPicture = false;
};
