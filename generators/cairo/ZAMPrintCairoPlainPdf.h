// SPDX-License-Identifier: MIT
#pragma once

#include "framework/print/ZAMPrintParameters.h"
#include "generators/cairo/ZAMPrintCairoPlainPage.h"
#include "generators/cairo/ZAMPrintCairoStream.h"

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <vector>

/// Writes a PDF file (ISO 32000-1) of plain pages.
class ZAMPrintCairoPlainPdf {
public:
    struct Page {
        double width = 0.0; ///< in points
        double height = 0.0;
        std::string content;
        std::set<int> opacities;
    };

    /// The stream is borrowed.
    explicit ZAMPrintCairoPlainPdf(ZAMPrintCairoStream& stream) : _Stream(stream) {}

    /// The whole file. Whether it could be written, the stream knows.
    void Write(const std::vector<Page>& pages, const ZAMPrintMetadata& metadata);

private:
    void Add(std::string_view text);
    /// Each object's number is one more than that of the one before.
    void BeginObject();
    void WritePages(const std::vector<Page>& pages);
    void WritePage(const Page& page);
    void WriteInformation(const ZAMPrintMetadata& metadata);
    void WriteEnd();

    ZAMPrintCairoStream& _Stream;
    std::size_t _Size = 0;             ///< written so far
    std::vector<std::size_t> _Objects; ///< where each begins
};
