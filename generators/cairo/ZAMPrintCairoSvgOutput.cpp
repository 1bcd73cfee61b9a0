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
    : ZAMPrintCairoOutput(stream, true),
      _Filter(stream, kHeaderEnd, [this](std::string& header) { AddTitles(header); }) {}

double ZAMPrintCairoSvgOutput::GetLargestPageSide() const {
    return ZAMPrintCairoLimits::kLargestSvgSide;
}

void ZAMPrintCairoSvgOutput::BeginDocument(const ZAMPrintParameters& parameters) {
    _Metadata = parameters.metadata;
}

ZAMPrintCairoCanvas* ZAMPrintCairoSvgOutput::BeginPage(double width, double height) {
    constexpr double kRounding = 1.0 + 1e-9;
    if (_Surface != nullptr) {
        return nullptr;
    }
    if (std::max(width, height) > ZAMPrintCairoLimits::kLargestSvgSide * kRounding) {
        throw ZAMPrintCairoFailure("a drawing of " + FormatLength(width) + " x " + FormatLength(height) +
                                   " points is too large: its sides have 100,000 points at most");
    }
    _Surface.reset(cairo_svg_surface_create_for_stream(WriteBytes, this, width, height));
    Check(cairo_surface_status(_Surface.get()));
    _Canvas.emplace(_Surface.get(), ZAMPrintCairoCanvas::Kind::Vector, GetPictures(), width, height, 1.0);
    _Canvas->MarkWholePage();
    return &*_Canvas;
}

void ZAMPrintCairoSvgOutput::EndPage() {
    if (_Canvas) {
        Check(cairo_status(_Canvas->GetContext()));
        _Canvas.reset();
        GetPictures().EndPage();
    }
}

void ZAMPrintCairoSvgOutput::EndDocument() {
    cairo_surface_finish(_Surface.get());
    _Filter.Flush();
    Check(cairo_surface_status(_Surface.get()));
}

cairo_status_t ZAMPrintCairoSvgOutput::WriteBytes(void* output, const unsigned char* bytes, unsigned int count) {
    try {
        auto& filter = static_cast<ZAMPrintCairoSvgOutput*>(output)->_Filter;
        return filter.Write({reinterpret_cast<const char*>(bytes), count}) ? CAIRO_STATUS_SUCCESS
                                                                           : CAIRO_STATUS_WRITE_ERROR;
    } catch (...) {
        return CAIRO_STATUS_NO_MEMORY;
    }
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
