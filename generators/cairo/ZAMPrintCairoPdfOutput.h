// SPDX-License-Identifier: MIT
#pragma once

#include "generators/cairo/ZAMPrintCairoHandles.h"
#include "generators/cairo/ZAMPrintCairoOutput.h"

#include <optional>
#include <string>
#include <vector>

/// PDF: any number of pages, each of its own size, with links. A page that is not of the size of the one before has its
/// sides rounded up to whole points.
class ZAMPrintCairoPdfOutput : public ZAMPrintCairoOutput {
public:
    using ZAMPrintCairoOutput::ZAMPrintCairoOutput;

    [[nodiscard]] double GetLargestPageSide() const override;
    void BeginDocument(const ZAMPrintParameters& parameters) override;
    [[nodiscard]] ZAMPrintCairoCanvas* BeginPage(double width, double height) override;
    void AddLink(const ZAMMathBox2D& area, std::string_view address) override;
    void EndPage() override;
    void EndDocument() override;

private:
    void SetPageSize(double width, double height);
    void SetMetadata(const ZAMPrintMetadata& metadata);
    void MarkWholePage();
    void WriteLinks();

    ZAMPrintMetadata _Metadata;
    ZAMPrintCairoSurface _Surface; ///< made with the first page
    double _Width = 0.0;           ///< of the last page, in points
    double _Height = 0.0;
    std::optional<ZAMPrintCairoCanvas> _Canvas;
    std::vector<std::string> _Links; ///< of the page, as attributes of their tags
};
