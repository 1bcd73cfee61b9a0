// SPDX-License-Identifier: MIT
#pragma once

#include "generators/cairo/ZAMPrintCairoGenerator.h"

#include <span>
#include <string>
#include <string_view>

/// All that the libraries make of a document, one after the other.
namespace WholeWay {

using Format = ZAMPrintCairoGenerator::Format;
inline constexpr Format kFormats[] = {Format::Pdf, Format::Ps, Format::Eps, Format::Svg, Format::Png};

struct Outcome {
    int parsed = 0; ///< as the parser has it
    int drawn = 0;  ///< as the interpreter has it
    bool hasGeneratorFailed = false;
    std::string output;
};

/// Reads, prepares, interprets and draws a document; patterns' tiles are drawn as well.
Outcome Draw(std::string_view document, Format format);

/// The model of a document, prepared, as JSON; also copied, measured and checked before. Empty when memory was out.
std::string Model(std::string_view document);

/// A document with every element that is read, or that is rewritten into one that is.
std::string EveryElement();

} // namespace WholeWay
