// SPDX-License-Identifier: MIT
#include "tools/common/PagePrinter.h"

#include "tools/common/Message.h"
#include "tools/common/PageSize.h"
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

ZAMPrintParameters PagePrinter::MakeParameters(const Document& document) const {
    ZAMPrintParameters parameters;
    parameters.margin = _Options.margin;
    parameters.fit = _Options.fit.value_or(_Options.paper ? ZAMPrintFit::Shrink : ZAMPrintFit::Page);
    // A page of the drawing's size grows with it instead.
    parameters.scale = _Options.paper ? _Options.scale : 1.0;
    parameters.resolution = _Options.resolution;
    parameters.background = _Options.background;
    parameters.metadata.title = _Options.title.value_or(document.GetTitle());
    parameters.metadata.author = _Options.author;
    parameters.metadata.subject = document.GetDescription();
    parameters.metadata.creationTime = ReadSourceDateEpoch();
    return parameters;
}

bool PagePrinter::Print(const Document& document, const std::function<void()>& check) {
    ZAMPrintParameters parameters = MakeParameters(document);
    const auto& drawings = document.GetDrawings();
    if (!HasPages(_Options.GetFormat()) && drawings.size() > 1) {
        Tell(document.GetName() + ": holds " + std::to_string(drawings.size()) +
             " drawings, and only the first one is printed: the format has one page");
        return PrintDrawing(document, drawings.front(), parameters, check);
    }
    return std::all_of(drawings.begin(), drawings.end(),
                       [&](const auto& drawing) { return PrintDrawing(document, drawing, parameters, check); });
}

bool PagePrinter::PrintDrawing(const Document& document, const ZAMLightXmlElement& drawing,
                               ZAMPrintParameters& parameters, const std::function<void()>& check) {
    ZAMPrintSVGInterpreter interpreter(&drawing);
    interpreter.SetCurrentPath(document.GetPath().c_str());
    float width = 0.0F;
    float height = 0.0F;
    static_cast<void>(interpreter.GetSize(width, height)); // reads it all
    check();
    const ZAMMathVector2D size = FindPageSize(drawing, interpreter, _Options);
    parameters.pageWidth = size.x;
    parameters.pageHeight = size.y;
    if (interpreter.Decode(&_Generator, parameters) != 1) {
        return false;
    }
    TellOfReduction(document, parameters);
    return true;
}

void PagePrinter::Tell(const std::string& text) const {
    if (!_Options.isQuiet) {
        PrintMessage(text);
    }
}

void PagePrinter::TellOfReduction(const Document& document, const ZAMPrintParameters& parameters) const {
    const double largestSide = _Generator.GetLargestPageSide();
    const double side = std::max(parameters.pageWidth, parameters.pageHeight);
    if (side > largestSide) {
        Tell(document.GetName() + ": the page of " + ToText(parameters.pageWidth / 72) + " x " +
             ToText(parameters.pageHeight / 72) + " in is larger than " + ToText(largestSide / 72) +
             " in and was reduced to " + ToText(100 * (largestSide / side)) + " %");
    }
}
