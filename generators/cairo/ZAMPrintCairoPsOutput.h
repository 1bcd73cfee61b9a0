// SPDX-License-Identifier: MIT
#pragma once

#include "generators/cairo/ZAMPrintCairoHeaderFilter.h"
#include "generators/cairo/ZAMPrintCairoVectorOutput.h"

#include <string>
#include <string_view>

/// PostScript level 3 with the comments of the document structuring conventions: any number of pages, each of its own
/// size; or encapsulated PostScript, one page. What lies under something translucent becomes pixels, 300 to the inch
/// or, on a large page, fewer: PostScript knows no transparency.
class ZAMPrintCairoPsOutput final : public ZAMPrintCairoVectorOutput {
public:
    enum class Kind { Document, Encapsulated };

    ZAMPrintCairoPsOutput(ZAMPrintCairoStream& stream, Kind kind);
    ZAMPrintCairoPsOutput(const ZAMPrintCairoPsOutput&) = delete;
    ZAMPrintCairoPsOutput& operator=(const ZAMPrintCairoPsOutput&) = delete;
    ~ZAMPrintCairoPsOutput() override { DropSurface(); }

    [[nodiscard]] double GetLargestPageSide() const override;
    void BeginDocument(const ZAMPrintParameters& parameters) override;
    [[nodiscard]] ZAMPrintCairoCanvas* BeginPage(double width, double height) override;

private:
    bool Write(std::string_view bytes) override { return _Filter.Write(bytes); }
    bool Flush() override { return _Filter.Flush(); }
    void MakeSurface(double width, double height);
    void WriteComment(std::string_view key, std::string_view text);
    void EditHeader(std::string& header) const;

    Kind _Kind;
    ZAMPrintCairoHeaderFilter _Filter;
    ZAMPrintMetadata _Metadata;
};
