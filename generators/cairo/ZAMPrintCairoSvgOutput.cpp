// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoSvgOutput.h"

#include "generators/cairo/ZAMPrintCairoFailure.h"
#include "generators/cairo/ZAMPrintCairoLimits.h"
#include "generators/cairo/ZAMPrintCairoMetadata.h"

#include <algorithm>
#include <cairo-svg.h>

namespace {

// Of the root's tag. The declaration before it ends in another way.
constexpr std::string_view kHeaderEnd = "\">\n";

std::string Escape(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        if (c == '<' || c == '&') {
            escaped += c == '<' ? "&lt;" : "&amp;";
        } else if (static_cast<unsigned char>(c) >= ' ' || c == '\n' || c == '\t') { // no XML without these
            escaped += c;
        }
    }
    return escaped;
}

} // namespace

ZAMPrintCairoSvgOutput::ZAMPrintCairoSvgOutput(ZAMPrintCairoStream& stream)
    : ZAMPrintCairoVectorOutput(stream, ZAMPrintCairoPictures::Fate::Filed), // cairo's PNG writer is slow
      _Filter(stream, kHeaderEnd, [this](std::string& header) { AddTitles(header); }) {}

double ZAMPrintCairoSvgOutput::GetLargestPageSide() const {
    return ZAMPrintCairoLimits::kLargestSvgSide;
}

void ZAMPrintCairoSvgOutput::BeginDocument(const ZAMPrintParameters& parameters) {
    _Metadata = parameters.metadata;
}

ZAMPrintCairoCanvas* ZAMPrintCairoSvgOutput::BeginPage(double width, double height) {
    constexpr double kRounding = 1.0 + 1e-9;
    if (GetSurface() != nullptr) {
        return nullptr;
    }
    if (std::max(width, height) > ZAMPrintCairoLimits::kLargestSvgSide * kRounding) {
        throw ZAMPrintCairoFailure("a drawing of " + FormatLength(width) + " x " + FormatLength(height) +
                                   " points is too large: its sides have 100,000 points at most");
    }
    SetSurface(
        cairo_svg_surface_create_for_stream(WriteBytes, static_cast<ZAMPrintCairoVectorOutput*>(this), width, height));
    Check(cairo_surface_status(GetSurface()));
    return BeginCanvas(width, height);
}

/// Cairo has no words for them.
void ZAMPrintCairoSvgOutput::AddTitles(std::string& header) const {
    const auto add = [&header](std::string_view name, std::string_view text) {
        const std::string escaped = Escape(ZAMPrintCairoMetadata::KeepCharacters(text));
        if (!escaped.empty()) {
            header.append("<").append(name).append(">").append(escaped).append("</").append(name).append(">\n");
        }
    };
    add("title", _Metadata.title);
    add("desc", _Metadata.subject);
}
