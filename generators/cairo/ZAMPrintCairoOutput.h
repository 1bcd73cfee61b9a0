// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathBox2D.h"
#include "framework/print/ZAMPrintParameters.h"
#include "generators/cairo/ZAMPrintCairoCanvas.h"
#include "generators/cairo/ZAMPrintCairoPictures.h"
#include "generators/cairo/ZAMPrintCairoStream.h"

#include <string>
#include <string_view>

/// One kind of output: the surface behind its pages, and what only it has. The calls come in order: a document is begun
/// once, and pages do not nest. What fails throws a ZAMPrintCairoFailure, after which nothing but the destructor is
/// called.
class ZAMPrintCairoOutput {
public:
    ZAMPrintCairoOutput(ZAMPrintCairoStream& stream, ZAMPrintCairoPictures::Fate pictures)
        : _Stream(stream), _Pictures(pictures) {}
    ZAMPrintCairoOutput(const ZAMPrintCairoOutput&) = delete;
    ZAMPrintCairoOutput& operator=(const ZAMPrintCairoOutput&) = delete;
    virtual ~ZAMPrintCairoOutput();

    /// In points.
    [[nodiscard]] virtual double GetLargestPageSide() const = 0;
    virtual void BeginDocument(const ZAMPrintParameters& parameters) = 0;
    /// A page of finite, positive size in points. The canvas lives until the page ends; null when the output has no
    /// more room for pages.
    [[nodiscard]] virtual ZAMPrintCairoCanvas* BeginPage(double width, double height) = 0;
    /// The area lies on the page and is not empty.
    virtual void AddLink(const ZAMMathBox2D& area, std::string_view address);
    virtual void AddInternalLink(const ZAMMathBox2D& area, std::string_view destination);
    /// The place lies on the page.
    virtual void AddDestination(std::string_view name, const ZAMMathPoint2D& place);
    /// The canvas has no clips any more.
    virtual void EndPage() = 0;
    virtual void EndDocument() = 0;

protected:
    [[nodiscard]] ZAMPrintCairoStream& GetStream() const { return _Stream; }
    /// They outlive the surfaces of the derived classes.
    [[nodiscard]] ZAMPrintCairoPictures& GetPictures() { return _Pictures; }
    /// Throws what the stream or the status tells.
    void Check(cairo_status_t status) const;
    /// A length for a message: 40000, 0.5.
    [[nodiscard]] static std::string FormatLength(double length);

private:
    ZAMPrintCairoStream& _Stream;
    ZAMPrintCairoPictures _Pictures;
};
