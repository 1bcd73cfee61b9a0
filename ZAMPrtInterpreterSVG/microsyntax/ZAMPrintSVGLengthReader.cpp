// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGLengthReader.h"

#include "framework/base/ZAMNumberReading.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace {

struct Unit {
    std::string_view suffix;
    double (*toUserUnits)(double value);
};

// In the order in which they are looked for. The factors are an inch of 89.9999978 units and 90/2.54 cut to seven
// digits; the order of the operations is part of the result.
constexpr Unit kUnits[] = {
    {"pt", [](double value) { return value / 72.0 * 89.9999978; }},
    {"pc", [](double value) { return value * 12.0 / 72.0 * 89.9999978; }},
    {"cm", [](double value) { return value * 35.43307; }},
    {"mm", [](double value) { return value * 3.543307; }},
    {"in", [](double value) { return value * 89.9999978; }},
};

// Nearly every text without is several numbers that are written as one, such as ".5.5".
bool MayHoldUnit(std::string_view text) {
    return std::ranges::any_of(text, [](char c) { return c == 'p' || c == 'c' || c == 'm' || c == 'i' || c == '%'; });
}

std::string Without(std::string_view text, std::string_view pattern) {
    std::string result;
    for (std::size_t found = text.find(pattern); found != std::string_view::npos; found = text.find(pattern)) {
        result += text.substr(0, found);
        text.remove_prefix(found + pattern.size());
    }
    return result += text;
}

} // namespace

int ZAMPrintSVGLengthReader::SetImageSize(double width, double height) {
    _ImageWidth = width;
    _ImageHeight = height;
    return 1;
}

int ZAMPrintSVGLengthReader::GetLength(std::string_view text, double& result) const {
    return ZAMReadPlainDouble(text, result) ? 1 : ReadOddLength(text, result);
}

// Of a text that is no plain number.
int ZAMPrintSVGLengthReader::ReadOddLength(std::string_view text, double& result) const {
    if (!MayHoldUnit(text)) {
        return ZAMReadDouble(text, result);
    }
    double value = 0.0;
    for (const Unit& unit : kUnits) {
        if (text.find(unit.suffix) != std::string_view::npos) {
            const int status = ZAMReadDouble(Without(text, unit.suffix), value);
            if (status == 1) {
                result = unit.toUserUnits(value);
            }
            return status;
        }
    }
    if (text.find('%') != std::string_view::npos) {
        const int status = ZAMReadDouble(Without(text, "%"), value);
        if (status == 1) {
            result = std::sqrt((_ImageWidth * _ImageWidth + _ImageHeight * _ImageHeight) * 0.5) * value / 100.0;
        }
        return status;
    }
    return ZAMReadDouble(text, result);
}

int ZAMPrintSVGLengthReader::GetHorLength(std::string_view text, double& result) const {
    return GetDirectedLength(text, _ImageWidth, result);
}

int ZAMPrintSVGLengthReader::GetVertLength(std::string_view text, double& result) const {
    return GetDirectedLength(text, _ImageHeight, result);
}

// Here a percent sign counts before any unit. Only where no number stands before it is the general rule asked, about
// what is left of the text.
int ZAMPrintSVGLengthReader::GetDirectedLength(std::string_view text, double percentBase, double& result) const {
    if (ZAMReadPlainDouble(text, result)) {
        return 1;
    }
    if (text.find('%') == std::string_view::npos) {
        return ReadOddLength(text, result);
    }
    const std::string number = Without(text, "%");
    double value = 0.0;
    if (ZAMReadDouble(number, value) == 1) {
        result = percentBase * value / 100.0;
        return 1;
    }
    return GetLength(number, result);
}

int ZAMPrintSVGLengthReader::GetYCoordinate(std::string_view text, double& result) const {
    const int status = GetVertLength(text, result);
    if (_FlipY) {
        result = _ImageHeight - result;
    }
    return status;
}

int ZAMPrintSVGLengthReader::GetNumber(std::string_view text, double& result) {
    return ZAMReadDouble(text, result);
}
