// SPDX-License-Identifier: MIT
#include "tools/zamprint/OptionTable.h"

#include "framework/base/ZAMNumberReading.h"
#include "framework/base/ZAMTextCompare.h"
#include "tools/zamprint/BackgroundColour.h"
#include "tools/zamprint/Completion.h"
#include "tools/zamprint/Manual.h"
#include "tools/zamprint/PaperSize.h"

#include <limits>
#include <utility>

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
constexpr Range kScales = {0.001, 1000.0, "0.001 to 1000"};
constexpr Range kJobs = {1.0, 256.0, "1 to 256"};

template <class Number> std::string ReadNumber(std::string_view text, const Range& range, Number& number) {
    double value = 0.0;
    // Written so that "nan" is outside too.
    if (!ZAMReadPlainDouble(text, value) || !(value >= range.lowest && value <= range.highest)) {
        return std::string("must be a number from ") + range.text;
    }
    number = value;
    return {};
}

// Letter case aside.
template <class Value, std::size_t kCount>
std::optional<Value> FindChoice(const std::pair<std::string_view, Value> (&choices)[kCount], std::string_view text) {
    for (const auto& [name, value] : choices) {
        if (ZAMTextMatches(name, text)) {
            return value;
        }
    }
    return std::nullopt;
}

std::string ReadFileName(std::string_view text, Options& options) {
    options.output = text;
    return text.empty() ? "the name is empty" : "";
}

std::string ReadFormat(std::string_view text, Options& options) {
    options.format = FindOutputFormat(text);
    return options.format ? "" : "must be one of " + ListOutputFormats();
}

std::string ReadDirectory(std::string_view text, Options& options) {
    options.outputDirectory = text;
    return text.empty() ? "the name is empty" : "";
}

std::string ReadPageSize(std::string_view text, Options& options) {
    options.paper = FindPaperSize(text);
    return options.paper || ZAMTextMatches(text, "document")
               ? ""
               : "must be document, A0 to A6, Letter, Legal, Tabloid, or WIDTHxHEIGHT in mm, cm, in or pt";
}

std::string ReadMargin(std::string_view text, Options& options) {
    const auto margin = ReadPaperLength(text);
    options.margin = margin.value_or(0.0);
    return margin ? "" : "must be a length in mm, cm, in or pt";
}

std::string ReadFit(std::string_view text, Options& options) {
    constexpr std::pair<std::string_view, ZAMPrintFit> kFits[] = {
        {"none", ZAMPrintFit::None}, {"shrink", ZAMPrintFit::Shrink}, {"page", ZAMPrintFit::Page}};
    options.fit = FindChoice(kFits, text);
    return options.fit ? "" : "must be none, shrink or page";
}

std::string ReadProgress(std::string_view text, Options& options) {
    constexpr std::pair<std::string_view, ProgressMode> kModes[] = {
        {"auto", ProgressMode::Auto}, {"always", ProgressMode::Always}, {"never", ProgressMode::Never}};
    const auto mode = FindChoice(kModes, text);
    options.progress = mode.value_or(options.progress);
    return mode ? "" : "must be auto, always or never";
}

std::string ReadJobs(std::string_view text, Options& options) {
    double number = 0.0;
    std::string wrong = ReadNumber(text, kJobs, number);
    options.jobs = static_cast<std::size_t>(number);
    return wrong;
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

std::string ReadPrepress(std::string_view text, Options& options) {
    options.isPrepared = ZAMTextMatches(text, "on");
    return options.isPrepared || ZAMTextMatches(text, "off") ? "" : "must be on or off";
}

constexpr OptionRow kOptions[] = {
    {"-o,--output", "FILE",
     "Write to FILE; without it, or for -, to standard output. Several inputs become the pages of one PDF or PS",
     ReadFileName},
    {"--output-dir", "DIR", "Write an output for each input to the folder DIR, named after the input", ReadDirectory},
    {"-f,--format", "pdf|ps|eps|svg|png|json", "The format; else from the ending of the output, else pdf", ReadFormat},
    {"--page-size", "document|A0|A1|A2|A3|A4|A5|A6|Letter|Legal|Tabloid|WxH...",
     "The size of the pages, also as in 210x297mm, in mm, cm, in or pt; without it, that of each drawing",
     ReadPageSize},
    {"--landscape", nullptr, "Turn the paper so that its long side lies below",
     [](std::string_view /*text*/, Options& options) {
         options.isLandscape = true;
         return std::string();
     }},
    {"--margin", "L", "The margin on each side of the page: a length in mm, cm, in or pt", ReadMargin},
    {"--fit", "none|shrink|page",
     "Drawings on the page, always centred: at their size, smaller where they do not fit, or as large as fits; without "
     "it, shrink on paper",
     ReadFit},
    {"-z,--scale", "S", "Enlarge drawings by the factor S",
     [](std::string_view text, Options& options) { return ReadNumber(text, kScales, options.scale); }},
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
     "How many elements may be drawn by reuse; without it, 100000, and always one more for every 10 bytes of the "
     "document",
     ReadMostElements},
    {"--prepress", "on|off", "Rewrite the document into what is drawn rightly before it is read; on without it",
     ReadPrepress},
    {"-u,--unlimited", nullptr,
     "Let a document take as much time and memory as it likes, in size and in what it reuses",
     [](std::string_view /*text*/, Options& options) {
         options.isUnlimited = true;
         options.mostElements = std::numeric_limits<std::size_t>::max() / 2;
         return std::string();
     }},
    {"--check", nullptr,
     "Print nothing: say on standard output what of the documents will not come out as it is drawn; with -f json for "
     "programs",
     [](std::string_view /*text*/, Options& options) {
         options.isChecked = true;
         return std::string();
     }},
    {"--strict", nullptr, "With --check: exit status 1 when there is anything to say",
     [](std::string_view /*text*/, Options& options) {
         options.isStrict = true;
         return std::string();
     }},
    {"--title", "T", "The title that the output bears; without it, that of the document",
     [](std::string_view text, Options& options) {
         options.title = text;
         return std::string();
     }},
    {"--author", "A", "The author that the output bears",
     [](std::string_view text, Options& options) {
         options.author = text;
         return std::string();
     }},
    {"-j,--jobs", "N", "Documents at once with --output-dir; without it, as many as there are processors", ReadJobs},
    {"--progress", "auto|always|never", "Show how far the work has come; without it, on a terminal for several inputs",
     ReadProgress},
    {"-q,--quiet", nullptr, "Say nothing but errors",
     [](std::string_view /*text*/, Options& options) {
         options.isQuiet = true;
         return std::string();
     }},
};

constexpr OptionRow kInformation[] = {
    {"--manual", nullptr, "Print the manual page, for man",
     [](std::string_view /*text*/, Options& options) {
         options.information = WriteManual();
         return std::string();
     }},
    {"--completion", "bash|zsh|fish", "Print the script that lets the shell complete options",
     [](std::string_view text, Options& options) {
         options.information = WriteCompletion(text);
         return std::string(options.information ? "" : "must be bash, zsh or fish");
     }},
    {"--version", nullptr, "Print the version",
     [](std::string_view /*text*/, Options& options) {
         options.information = "zamprint " ZAM_VERSION "\n";
         return std::string();
     }},
    // Its text is the command line's own.
    {"--help", nullptr, "Print this help", nullptr},
};

} // namespace

std::span<const OptionRow> GetOptionTable() {
    return kOptions;
}

std::span<const OptionRow> GetInformationTable() {
    return kInformation;
}
