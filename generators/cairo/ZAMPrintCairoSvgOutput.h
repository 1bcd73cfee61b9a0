// SPDX-License-Identifier: MIT
#pragma once

#include "generators/cairo/ZAMPrintCairoHeaderFilter.h"
#include "generators/cairo/ZAMPrintCairoVectorOutput.h"

#include <string>
#include <string_view>

/// SVG 1.1: one drawing, the first page, with text as outlines and without links. It is the print as it would come out,
/// in words that any reader of SVG understands.
class ZAMPrintCairoSvgOutput final : public ZAMPrintCairoVectorOutput {
public:
    explicit ZAMPrintCairoSvgOutput(ZAMPrintCairoStream& stream);
    ZAMPrintCairoSvgOutput(const ZAMPrintCairoSvgOutput&) = delete;
    ZAMPrintCairoSvgOutput& operator=(const ZAMPrintCairoSvgOutput&) = delete;
    ~ZAMPrintCairoSvgOutput() override { DropSurface(); }

    [[nodiscard]] double GetLargestPageSide() const override;
    void BeginDocument(const ZAMPrintParameters& parameters) override;
    [[nodiscard]] ZAMPrintCairoCanvas* BeginPage(double width, double height) override;

private:
    bool Write(std::string_view bytes) override { return _Filter.Write(bytes); }
    bool Flush() override { return _Filter.Flush(); }
    void AddTitles(std::string& header) const;

    ZAMPrintCairoHeaderFilter _Filter;
    ZAMPrintMetadata _Metadata;
};
