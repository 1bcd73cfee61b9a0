// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoPsOutput.h"

#include "generators/cairo/ZAMPrintCairoFailure.h"
#include "generators/cairo/ZAMPrintCairoLimits.h"
#include "generators/cairo/ZAMPrintCairoMetadata.h"

#include <algorithm>
#include <cairo-ps.h>
#include <cmath>

namespace {

constexpr std::string_view kHeaderEnd = "%%EndComments\n";

/// As a text of a comment (DSC 3.0, 4.6): one line of printable ASCII, of which cairo takes 255 bytes with the key.
std::string ToComment(std::string_view text) {
    constexpr std::size_t kMost = 200;
    std::string comment;
    for (const char c : text.substr(0, kMost)) {
        comment += c >= ' ' && c <= '~' ? c : c == '\n' || c == '\t' ? ' ' : '?';
    }
    return comment;
}

/// Of the pixels that what is translucent becomes, to the inch.
double ChooseResolution(double width, double height) {
    constexpr double kBest = 300.0;
    return std::min(kBest, 72.0 * std::sqrt(ZAMPrintCairoLimits::kMostFallbackPixels / (width * height)));
}

double FitSide(double side) {
    return std::clamp(side, ZAMPrintCairoLimits::kSmallestPsSide, ZAMPrintCairoLimits::kLargestPdfSide);
}

} // namespace

ZAMPrintCairoPsOutput::ZAMPrintCairoPsOutput(ZAMPrintCairoStream& stream, Kind kind)
    : ZAMPrintCairoVectorOutput(stream, ZAMPrintCairoPictures::Fate::Written), _Kind(kind),
      _Filter(stream, kHeaderEnd, [this](std::string& header) { EditHeader(header); }) {}

double ZAMPrintCairoPsOutput::GetLargestPageSide() const {
    return ZAMPrintCairoLimits::kLargestPdfSide;
}

void ZAMPrintCairoPsOutput::BeginDocument(const ZAMPrintParameters& parameters) {
    _Metadata = parameters.metadata;
}

ZAMPrintCairoCanvas* ZAMPrintCairoPsOutput::BeginPage(double width, double height) {
    constexpr double kRounding = 1.0 + 1e-9;
    if (std::max(width, height) > ZAMPrintCairoLimits::kLargestPdfSide * kRounding) {
        throw ZAMPrintCairoFailure("a page of " + FormatLength(width) + " x " + FormatLength(height) +
                                   " points is too large: PostScript pages have 14,400 points a side at most");
    }
    if (GetSurface() == nullptr) {
        MakeSurface(FitSide(width), FitSide(height));
    } else if (_Kind == Kind::Encapsulated) {
        return nullptr;
    } else {
        cairo_ps_surface_set_size(GetSurface(), FitSide(width), FitSide(height));
    }
    const double resolution = ChooseResolution(FitSide(width), FitSide(height));
    cairo_surface_set_fallback_resolution(GetSurface(), resolution, resolution);
    Check(cairo_surface_status(GetSurface()));
    return BeginCanvas(width, height);
}

void ZAMPrintCairoPsOutput::MakeSurface(double width, double height) {
    SetSurface(
        cairo_ps_surface_create_for_stream(WriteBytes, static_cast<ZAMPrintCairoVectorOutput*>(this), width, height));
    cairo_ps_surface_set_eps(GetSurface(), _Kind == Kind::Encapsulated ? 1 : 0);
    WriteComment("%%Title: ", _Metadata.title);
    WriteComment("%%For: ", _Metadata.author);
}

void ZAMPrintCairoPsOutput::WriteComment(std::string_view key, std::string_view text) {
    if (!text.empty()) {
        cairo_ps_surface_dsc_comment(GetSurface(), std::string(key).append(ToComment(text)).c_str());
    }
}

/// Cairo writes its own name and the time of day.
void ZAMPrintCairoPsOutput::EditHeader(std::string& header) const {
    const auto replace = [&header](std::string_view key, std::string_view text) {
        const std::size_t line = header.find(key);
        if (line != std::string::npos) {
            const std::size_t start = line + key.size();
            header.replace(start, header.find('\n', start) - start, text);
        }
    };
    replace("%%Creator: ", ZAMPrintCairoMetadata::kCreator);
    if (_Metadata.creationTime) {
        if (const auto calendar = ZAMPrintCairoMetadata::ToCalendar(*_Metadata.creationTime)) {
            replace("%%CreationDate: ", ZAMPrintCairoMetadata::FormatDate(*calendar));
        }
    }
}
