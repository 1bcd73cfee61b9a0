// SPDX-License-Identifier: MIT
#include "tools/zamprint/OptionTable.h"

#include "framework/base/ZAMNumberReading.h"
#include "framework/base/ZAMTextCompare.h"
#include "tools/zamprint/BackgroundColour.h"

namespace {

struct Range {
    double lowest;
    double highest;
    const char* text;
};

// Beyond these an output is a mistake in typing: a side of 1,000,000 user units is 280 m of paper.
constexpr Range kSides = {0.01, 1e6, "0.01 to 1000000"};
constexpr Range kElements = {0.0, 1e12, "0 to 1000000000000"};
constexpr Range kResolutions = {1.0, 4800.0, "1 to 4800"};

template <class Number> std::string ReadNumber(std::string_view text, const Range& range, Number& number) {
    double value = 0.0;
    // Written so that "nan" is outside too.
    if (!ZAMReadPlainDouble(text, value) || !(value >= range.lowest && value <= range.highest)) {
        return std::string("must be a number from ") + range.text;
    }
    number = value;
    return {};
}

std::string ReadFileName(std::string_view text, Options& options) {
    options.output = text;
    return text.empty() ? "the name is empty" : "";
}

std::string ReadFormat(std::string_view text, Options& options) {
    options.format = FindOutputFormat(text);
    return options.format ? "" : "must be one of " + ListOutputFormats();
}

std::string ReadPageSize(std::string_view text, Options& /*options*/) {
    return ZAMTextMatches(text, "document") ? "" : "must be document";
}

std::string ReadBackground(std::string_view text, Options& options) {
    return ReadBackgroundColour(text, options.background) ? "" : "must be #rgb, #rrggbb, a colour name of SVG, or none";
}

std::string ReadAllowedFiles(std::string_view text, Options& options) {
    const auto files = FindAllowedFiles(text);
    options.allowedFiles = files.value_or(options.allowedFiles);
    return files ? "" : "must be all, document or none";
}

std::string ReadMostElements(std::string_view text, Options& options) {
    double number = 0.0;
    std::string wrong = ReadNumber(text, kElements, number);
    options.mostElements = static_cast<std::size_t>(number);
    return wrong;
}

constexpr OptionRow kOptions[] = {
    {"-o,--output", "FILE", "Write to FILE; without it, or for -, to standard output", ReadFileName},
    {"-f,--format", "pdf|ps|eps|svg|png|json", "The format; else from the ending of the output, else pdf", ReadFormat},
    {"--page-size", "document", "The size of a page: that of its drawing", ReadPageSize},
    {"-w,--width", "N", "The width of a page, in pixels for png, else in units of 1/90 inch",
     [](std::string_view text, Options& options) { return ReadNumber(text, kSides, options.width); }},
    {"-h,--height", "N", "The height, likewise; one of the two keeps the aspect, both fit the drawing and centre it",
     [](std::string_view text, Options& options) { return ReadNumber(text, kSides, options.height); }},
    {"-d,--dpi", "N", "Pixels to the inch in png; 90, one for each user unit, without it",
     [](std::string_view text, Options& options) { return ReadNumber(text, kResolutions, options.resolution); }},
    {"-b,--background", "COLOUR", "The colour of the paper: #rgb, #rrggbb, a colour name of SVG, or none",
     ReadBackground},
    {"--allow-files", "all|document|none",
     "The picture files that a document may read; without it, those in its folder and below", ReadAllowedFiles},
    {"--max-elements", "N",
     "How many elements may be drawn by reuse; without it, 1000000, and always 10 more for each element of the "
     "document",
     ReadMostElements},
};

} // namespace

std::span<const OptionRow> GetOptionTable() {
    return kOptions;
}
