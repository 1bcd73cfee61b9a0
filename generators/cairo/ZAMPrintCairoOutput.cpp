// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoOutput.h"

#include "generators/cairo/ZAMPrintCairoFailure.h"

#include <array>
#include <charconv>
#include <new>

ZAMPrintCairoOutput::~ZAMPrintCairoOutput() = default;

void ZAMPrintCairoOutput::AddLink(const ZAMMathBox2D& /*area*/, std::string_view /*address*/) {}

void ZAMPrintCairoOutput::AddInternalLink(const ZAMMathBox2D& /*area*/, std::string_view /*destination*/) {}

void ZAMPrintCairoOutput::AddDestination(std::string_view /*name*/, const ZAMMathPoint2D& /*place*/) {}

void ZAMPrintCairoOutput::Check(cairo_status_t status) const {
    if (!_Stream.IsGood()) {
        throw ZAMPrintCairoFailure("cannot write the output");
    }
    if (status == CAIRO_STATUS_NO_MEMORY) {
        throw std::bad_alloc();
    }
    if (status != CAIRO_STATUS_SUCCESS) {
        throw ZAMPrintCairoFailure(std::string("cannot draw: ") + cairo_status_to_string(status));
    }
}

std::string ZAMPrintCairoOutput::FormatLength(double length) {
    std::array<char, 32> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), length, std::chars_format::general, 10);
    return {text.data(), result.ptr};
}
