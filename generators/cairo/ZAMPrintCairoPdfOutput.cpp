// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoPdfOutput.h"

#include "generators/cairo/ZAMPrintCairoFailure.h"
#include "generators/cairo/ZAMPrintCairoLimits.h"
#include "generators/cairo/ZAMPrintCairoLink.h"
#include "generators/cairo/ZAMPrintCairoMetadata.h"
#include "generators/cairo/ZAMPrintCairoPlainPage.h"

#include <algorithm>
#include <cairo-pdf.h>
#include <cmath>
#include <utility>

namespace {

/// The render's pages may exceed the limit by a rounding error; others are none of PDF's.
double FitSide(double side) {
    return std::clamp(side, ZAMPrintCairoLimits::kSmallestPdfSide, ZAMPrintCairoLimits::kLargestPdfSide);
}

/// To whole points, unless what lies beyond them is too little to be seen.
double RoundUp(double side) {
    constexpr double kNothing = 1.0 / 256.0;
    return side - std::floor(side) < kNothing && side >= 1.0 ? side : std::ceil(side);
}

} // namespace

double ZAMPrintCairoPdfOutput::GetLargestPageSide() const {
    return ZAMPrintCairoLimits::kLargestPdfSide;
}

void ZAMPrintCairoPdfOutput::BeginDocument(const ZAMPrintParameters& parameters) {
    _Metadata = parameters.metadata;
}

ZAMPrintCairoCanvas* ZAMPrintCairoPdfOutput::BeginPage(double width, double height) {
    constexpr double kRounding = 1.0 + 1e-9;
    if (std::max(width, height) > ZAMPrintCairoLimits::kLargestPdfSide * kRounding) {
        throw ZAMPrintCairoFailure("a page of " + FormatLength(width) + " x " + FormatLength(height) +
                                   " points is too large: PDF allows 14,400 points a side");
    }
    _BegunWidth = width;
    _BegunHeight = height;
    if (GetSurface() == nullptr) {
        return BeginCanvas(width, height, [this] { return MakeSurface(); });
    }
    SetPageSize(FitSide(width), FitSide(height));
    return BeginCanvas(width, height);
}

void ZAMPrintCairoPdfOutput::EndPage() {
    auto& canvas = GetCanvas();
    if (canvas && !canvas->IsOpen()) {
        if (_Tags.empty() && KeepPlainPage()) {
            canvas.reset();
            return;
        }
        canvas->Open();
    }
    ZAMPrintCairoVectorOutput::EndPage();
}

void ZAMPrintCairoPdfOutput::EndDocument() {
    if (GetSurface() != nullptr) {
        return ZAMPrintCairoVectorOutput::EndDocument();
    }
    ZAMPrintCairoPlainPdf(GetStream()).Write(_Written, _Metadata);
    Check(CAIRO_STATUS_SUCCESS);
}

/// False when cairo is to draw the page: because only it can, or because too much is kept.
bool ZAMPrintCairoPdfOutput::KeepPlainPage() {
    if (_KeptBytes > ZAMPrintCairoLimits::kMostKeptBytes) {
        return false;
    }
    const bool isFirst = _Written.empty();
    const double width = FitSide(_BegunWidth);
    const double height = FitSide(_BegunHeight);
    const bool isRounded = !isFirst && (width != _Width || height != _Height);
    const bool isSame = !isFirst && !isRounded;
    ZAMPrintCairoPlainPdf::Page written;
    written.width = isRounded ? RoundUp(width) : (isSame ? _Written.back().width : width);
    written.height = isRounded ? RoundUp(height) : (isSame ? _Written.back().height : height);
    ZAMPrintCairoPlainPage page(written.width, written.height);
    GetCanvas()->GetRecord().Replay(page);
    if (!page.IsPlain()) {
        return false;
    }
    written.content = page.Finish();
    written.opacities = page.GetOpacities();
    _KeptBytes += written.content.size() + GetCanvas()->GetRecord().GetSize();
    _Written.push_back(std::move(written));
    _PlainPages.push_back({_BegunWidth, _BegunHeight, GetCanvas()->TakeRecord()});
    _Width = width;
    _Height = height;
    return true;
}

/// The surface as it is for the page that has begun.
cairo_surface_t* ZAMPrintCairoPdfOutput::MakeSurface() {
    DrawPlainPages();
    SetPageSize(FitSide(_BegunWidth), FitSide(_BegunHeight));
    return GetSurface();
}

void ZAMPrintCairoPdfOutput::DrawPlainPages() {
    _Written.clear();
    for (const PlainPage& page : std::exchange(_PlainPages, {})) {
        SetPageSize(FitSide(page.width), FitSide(page.height));
        ZAMPrintCairoCanvas canvas(GetSurface(), ZAMPrintCairoCanvas::Kind::Vector, GetPictures(), page.width,
                                   page.height, 1.0);
        canvas.MarkWholePage();
        page.record.Replay(canvas);
        cairo_show_page(canvas.GetContext());
        Check(cairo_status(canvas.GetContext()));
    }
}

void ZAMPrintCairoPdfOutput::AddLink(const ZAMMathBox2D& area, std::string_view address) {
    if (auto attributes = ZAMPrintCairoLink::MakeAttributes(area, address)) {
        _Tags.push_back({CAIRO_TAG_LINK, std::move(*attributes)});
    }
}

void ZAMPrintCairoPdfOutput::AddInternalLink(const ZAMMathBox2D& area, std::string_view destination) {
    _Tags.push_back({CAIRO_TAG_LINK, ZAMPrintCairoLink::MakeAttributes(area, _Destinations.NumberOf(destination))});
}

void ZAMPrintCairoPdfOutput::AddDestination(std::string_view name, const ZAMMathPoint2D& place) {
    std::size_t number = 0;
    if (_Destinations.Add(name, number)) {
        _Tags.push_back({CAIRO_TAG_DEST, ZAMPrintCairoLink::MakeDestination(number, place)});
    }
}

/// A surface takes any size when it is made; when its size is changed, cairo 1.16 drops what lies beyond the last whole
/// point. So only a page that differs from the one before changes it, and then has whole points.
void ZAMPrintCairoPdfOutput::SetPageSize(double width, double height) {
    if (GetSurface() == nullptr) {
        SetSurface(cairo_pdf_surface_create_for_stream(WriteBytes, static_cast<ZAMPrintCairoVectorOutput*>(this), width,
                                                       height));
        SetMetadata(_Metadata);
    } else if (width != _Width || height != _Height) {
        cairo_pdf_surface_set_size(GetSurface(), RoundUp(width), RoundUp(height));
    }
    Check(cairo_surface_status(GetSurface()));
    _Width = width;
    _Height = height;
}

void ZAMPrintCairoPdfOutput::SetMetadata(const ZAMPrintMetadata& metadata) {
    const auto set = [this](cairo_pdf_metadata_t key, const std::string& text) {
        if (!text.empty()) {
            cairo_pdf_surface_set_metadata(GetSurface(), key, text.c_str());
        }
    };
    set(CAIRO_PDF_METADATA_TITLE, ZAMPrintCairoMetadata::KeepCharacters(metadata.title));
    set(CAIRO_PDF_METADATA_AUTHOR, ZAMPrintCairoMetadata::KeepCharacters(metadata.author));
    set(CAIRO_PDF_METADATA_SUBJECT, ZAMPrintCairoMetadata::KeepCharacters(metadata.subject));
    set(CAIRO_PDF_METADATA_CREATOR, ZAMPrintCairoMetadata::kCreator);
    if (metadata.creationTime) {
        if (const auto calendar = ZAMPrintCairoMetadata::ToCalendar(*metadata.creationTime)) {
            set(CAIRO_PDF_METADATA_CREATE_DATE, ZAMPrintCairoMetadata::FormatDate(*calendar));
            set(CAIRO_PDF_METADATA_MOD_DATE, ZAMPrintCairoMetadata::FormatDate(*calendar));
        }
    }
}

/// After all marks, so that no clip touches the links; and because cairo forgets what it was told, tags included, when
/// a mark covers the page, after which the end of a tag would be an error.
void ZAMPrintCairoPdfOutput::FinishPage() {
    if (_Tags.empty()) {
        return;
    }
    cairo_t* context = GetContext();
    // Without a tag of the document's structure around them, links make cairo 1.16 refer to an object that it does not
    // write.
    cairo_tag_begin(context, "Document", nullptr);
    // A page without a mark inside the tag loses its links; a line of no length leaves none, but counts.
    cairo_set_line_cap(context, CAIRO_LINE_CAP_BUTT);
    cairo_set_dash(context, nullptr, 0, 0.0);
    cairo_move_to(context, 0.0, 0.0);
    cairo_line_to(context, 0.0, 0.0);
    cairo_stroke(context);
    for (const Tag& tag : _Tags) {
        cairo_tag_begin(context, tag.name, tag.attributes.c_str());
        cairo_tag_end(context, tag.name);
    }
    cairo_tag_end(context, "Document");
    _Tags.clear();
}
