// SPDX-License-Identifier: MIT
#include "tools/zamprint/PagePrinter.h"

#include "tools/zamprint/Message.h"
#include "tools/zamprint/PageSize.h"
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVGInterpreter.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

// The time that the output is to carry when it must not depend on when it is made: seconds since 1970, up to the year
// 9999. Nothing when it is not set or is no such number.
std::optional<std::time_t> ReadSourceDateEpoch() {
    const char* text = std::getenv("SOURCE_DATE_EPOCH");
    if (text == nullptr) {
        return std::nullopt;
    }
    std::time_t seconds = -1;
    const char* end = text + std::strlen(text);
    const auto [stop, error] = std::from_chars(text, end, seconds);
    const bool isTime = error == std::errc() && stop == end && seconds >= 0 && seconds <= 253402300799;
    return isTime ? std::optional(seconds) : std::nullopt;
}

// As a person reads it: at most three significant digits.
std::string ToText(double number) {
    char text[32];
    std::snprintf(text, sizeof(text), "%.3g", number);
    return text;
}

} // namespace

bool PagePrinter::Print(const Document& document) {
    ZAMPrintParameters parameters;
    parameters.resolution = _Options.resolution;
    parameters.background = _Options.background;
    parameters.metadata.title = document.GetTitle();
    parameters.metadata.subject = document.GetDescription();
    parameters.metadata.creationTime = ReadSourceDateEpoch();

    const auto& drawings = document.GetDrawings();
    if (!HasPages(_Options.GetFormat()) && drawings.size() > 1) {
        PrintMessage(document.GetName() + ": holds " + std::to_string(drawings.size()) +
                     " drawings, and only the first one is printed: the format has one page");
        return PrintDrawing(document, drawings.front(), parameters);
    }
    return std::all_of(drawings.begin(), drawings.end(),
                       [&](const auto& drawing) { return PrintDrawing(document, drawing, parameters); });
}

bool PagePrinter::PrintDrawing(const Document& document, const ZAMLightXmlElement& drawing,
                               ZAMPrintParameters& parameters) {
    ZAMPrintSVGInterpreter interpreter(&drawing);
    interpreter.SetCurrentPath(document.GetPath().c_str());
    const ZAMMathVector2D size = FindPageSize(drawing, interpreter, _Options);
    parameters.pageWidth = size.x;
    parameters.pageHeight = size.y;
    if (interpreter.Decode(&_Generator, parameters) != 1) {
        return false;
    }
    TellOfReduction(document, parameters);
    return true;
}

void PagePrinter::TellOfReduction(const Document& document, const ZAMPrintParameters& parameters) const {
    const double largestSide = _Generator.GetLargestPageSide();
    const double side = std::max(parameters.pageWidth, parameters.pageHeight);
    if (side > largestSide) {
        PrintMessage(document.GetName() + ": the page of " + ToText(parameters.pageWidth / 72) + " x " +
                     ToText(parameters.pageHeight / 72) + " in is larger than " + ToText(largestSide / 72) +
                     " in and was reduced to " + ToText(100 * (largestSide / side)) + " %");
    }
}
