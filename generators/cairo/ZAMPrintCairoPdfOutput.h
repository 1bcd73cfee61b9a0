// SPDX-License-Identifier: MIT
#pragma once

#include "generators/cairo/ZAMPrintCairoDestinations.h"
#include "generators/cairo/ZAMPrintCairoNameFilter.h"
#include "generators/cairo/ZAMPrintCairoPlainPdf.h"
#include "generators/cairo/ZAMPrintCairoRecord.h"
#include "generators/cairo/ZAMPrintCairoVectorOutput.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// PDF: any number of pages, each of its own size, with links. A page that is not of the size of the one before has its
/// sides rounded up to whole points.
///
/// As long as there is nothing but plain paths on the pages they are written without cairo, whose surface is made for
/// the first mark that needs it, or when what is kept of earlier pages has grown too large; it then gets the pages
/// before as well. Until then nothing is written before the document ends.
class ZAMPrintCairoPdfOutput final : public ZAMPrintCairoVectorOutput {
public:
    explicit ZAMPrintCairoPdfOutput(ZAMPrintCairoStream& stream) : ZAMPrintCairoVectorOutput(stream), _Filter(stream) {}
    ZAMPrintCairoPdfOutput(const ZAMPrintCairoPdfOutput&) = delete;
    ZAMPrintCairoPdfOutput& operator=(const ZAMPrintCairoPdfOutput&) = delete;
    ~ZAMPrintCairoPdfOutput() override { DropSurface(); }

    [[nodiscard]] double GetLargestPageSide() const override;
    void BeginDocument(const ZAMPrintParameters& parameters) override;
    [[nodiscard]] ZAMPrintCairoCanvas* BeginPage(double width, double height) override;
    void AddLink(const ZAMMathBox2D& area, std::string_view address) override;
    void AddInternalLink(const ZAMMathBox2D& area, std::string_view destination) override;
    void AddDestination(std::string_view name, const ZAMMathPoint2D& place) override;
    void EndPage() override;
    void EndDocument() override;

private:
    /// A page that cairo knows nothing of.
    struct PlainPage {
        double width; ///< as it was begun
        double height;
        ZAMPrintCairoRecord record;
    };

    /// One of cairo's tags, with nothing in it.
    struct Tag {
        const char* name;
        std::string attributes;
    };

    bool Write(std::string_view bytes) override { return _Filter.Write(bytes); }
    bool Flush() override { return _Filter.Flush(); }
    void FinishPage() override;
    [[nodiscard]] bool KeepPlainPage();
    [[nodiscard]] cairo_surface_t* MakeSurface();
    void DrawPlainPages();
    void SetPageSize(double width, double height);
    void SetMetadata(const ZAMPrintMetadata& metadata);

    ZAMPrintCairoNameFilter _Filter;
    ZAMPrintMetadata _Metadata;
    double _Width = 0.0; ///< of the last page, in points
    double _Height = 0.0;
    double _BegunWidth = 0.0; ///< of the page that is drawn, as it was begun
    double _BegunHeight = 0.0;
    std::vector<PlainPage> _PlainPages;
    std::vector<ZAMPrintCairoPlainPdf::Page> _Written; ///< and what becomes of them without cairo
    std::size_t _KeptBytes = 0;                        ///< of both
    std::vector<Tag> _Tags;                            ///< of the page: its links and destinations
    ZAMPrintCairoDestinations _Destinations;
};
