// SPDX-License-Identifier: MIT
#pragma once

#include "generators/cairo/ZAMPrintCairoDestinations.h"
#include "generators/cairo/ZAMPrintCairoNameFilter.h"
#include "generators/cairo/ZAMPrintCairoVectorOutput.h"

#include <string>
#include <string_view>
#include <vector>

/// PDF: any number of pages, each of its own size, with links. A page that is not of the size of the one before has its
/// sides rounded up to whole points.
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

private:
    /// One of cairo's tags, with nothing in it.
    struct Tag {
        const char* name;
        std::string attributes;
    };

    bool Write(std::string_view bytes) override { return _Filter.Write(bytes); }
    bool Flush() override { return _Filter.Flush(); }
    void FinishPage() override;
    void SetPageSize(double width, double height);
    void SetMetadata(const ZAMPrintMetadata& metadata);

    ZAMPrintCairoNameFilter _Filter;
    ZAMPrintMetadata _Metadata;
    double _Width = 0.0; ///< of the last page, in points
    double _Height = 0.0;
    std::vector<Tag> _Tags; ///< of the page: its links and destinations
    ZAMPrintCairoDestinations _Destinations;
};
