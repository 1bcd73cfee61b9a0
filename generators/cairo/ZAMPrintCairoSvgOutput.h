// SPDX-License-Identifier: MIT
#pragma once

#include "generators/cairo/ZAMPrintCairoHandles.h"
#include "generators/cairo/ZAMPrintCairoHeaderFilter.h"
#include "generators/cairo/ZAMPrintCairoOutput.h"

#include <optional>
#include <string>

/// SVG 1.1: one drawing, the first page, with text as outlines and without links. It is the print as it would come out,
/// in words that any reader of SVG understands.
class ZAMPrintCairoSvgOutput : public ZAMPrintCairoOutput {
public:
    explicit ZAMPrintCairoSvgOutput(ZAMPrintCairoStream& stream);

    [[nodiscard]] double GetLargestPageSide() const override;
    void BeginDocument(const ZAMPrintParameters& parameters) override;
    [[nodiscard]] ZAMPrintCairoCanvas* BeginPage(double width, double height) override;
    void EndPage() override;
    void EndDocument() override;

private:
    static cairo_status_t WriteBytes(void* output, const unsigned char* bytes, unsigned int count);
    void AddTitles(std::string& header) const;

    ZAMPrintCairoHeaderFilter _Filter;
    ZAMPrintMetadata _Metadata;
    ZAMPrintCairoSurface _Surface; ///< made with the page
    std::optional<ZAMPrintCairoCanvas> _Canvas;
};
