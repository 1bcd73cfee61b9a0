// SPDX-License-Identifier: MIT
#pragma once

#include "generators/cairo/ZAMPrintCairoHandles.h"
#include "generators/cairo/ZAMPrintCairoHeaderFilter.h"
#include "generators/cairo/ZAMPrintCairoOutput.h"

#include <optional>
#include <string>

/// PostScript level 3 with the comments of the document structuring conventions: any number of pages, each of its own
/// size; or encapsulated PostScript, one page. What lies under something translucent becomes pixels, 300 to the inch:
/// PostScript knows no transparency.
class ZAMPrintCairoPsOutput : public ZAMPrintCairoOutput {
public:
    enum class Kind { Document, Encapsulated };

    ZAMPrintCairoPsOutput(ZAMPrintCairoStream& stream, Kind kind);

    [[nodiscard]] double GetLargestPageSide() const override;
    void BeginDocument(const ZAMPrintParameters& parameters) override;
    [[nodiscard]] ZAMPrintCairoCanvas* BeginPage(double width, double height) override;
    void EndPage() override;
    void EndDocument() override;

private:
    static cairo_status_t WriteBytes(void* output, const unsigned char* bytes, unsigned int count);
    void MakeSurface(double width, double height);
    void WriteComment(std::string_view key, std::string_view text);
    void EditHeader(std::string& header) const;

    Kind _Kind;
    ZAMPrintCairoHeaderFilter _Filter;
    ZAMPrintMetadata _Metadata;
    ZAMPrintCairoSurface _Surface; ///< made with the first page
    std::optional<ZAMPrintCairoCanvas> _Canvas;
};
