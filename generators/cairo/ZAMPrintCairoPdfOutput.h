// SPDX-License-Identifier: MIT
#pragma once

#include "generators/cairo/ZAMPrintCairoDestinations.h"
#include "generators/cairo/ZAMPrintCairoHandles.h"
#include "generators/cairo/ZAMPrintCairoNameFilter.h"
#include "generators/cairo/ZAMPrintCairoOutput.h"

#include <optional>
#include <string>
#include <vector>

/// PDF: any number of pages, each of its own size, with links. A page that is not of the size of the one before has its
/// sides rounded up to whole points.
class ZAMPrintCairoPdfOutput : public ZAMPrintCairoOutput {
public:
    explicit ZAMPrintCairoPdfOutput(ZAMPrintCairoStream& stream) : ZAMPrintCairoOutput(stream, true), _Filter(stream) {}

    [[nodiscard]] double GetLargestPageSide() const override;
    void BeginDocument(const ZAMPrintParameters& parameters) override;
    [[nodiscard]] ZAMPrintCairoCanvas* BeginPage(double width, double height) override;
    void AddLink(const ZAMMathBox2D& area, std::string_view address) override;
    void AddInternalLink(const ZAMMathBox2D& area, std::string_view destination) override;
    void AddDestination(std::string_view name, const ZAMMathPoint2D& place) override;
    void EndPage() override;
    void EndDocument() override;

private:
    /// One of cairo's tags, with nothing in it.
    struct Tag {
        const char* name;
        std::string attributes;
    };

    static cairo_status_t WriteBytes(void* output, const unsigned char* bytes, unsigned int count);
    void SetPageSize(double width, double height);
    void SetMetadata(const ZAMPrintMetadata& metadata);
    void WriteTags();

    ZAMPrintCairoNameFilter _Filter;
    ZAMPrintMetadata _Metadata;
    ZAMPrintCairoSurface _Surface; ///< made with the first page
    double _Width = 0.0;           ///< of the last page, in points
    double _Height = 0.0;
    std::optional<ZAMPrintCairoCanvas> _Canvas;
    std::vector<Tag> _Tags; ///< of the page: its links and destinations
    ZAMPrintCairoDestinations _Destinations;
};
