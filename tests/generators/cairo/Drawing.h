// SPDX-License-Identifier: MIT
#pragma once

#include "generators/cairo/ZAMPrintCairoGenerator.h"

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <limits>
#include <string>

inline constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
inline constexpr double kInfinity = std::numeric_limits<double>::infinity();
inline constexpr ZAMPrintFill kRed{{255, 0, 0, 255}, ZAMPrtFillRule::NonZero};
inline constexpr ZAMPrintFill kBlue{{0, 0, 255, 255}, ZAMPrtFillRule::NonZero};

/// A path from text: "M 0 0 L 10 0 C 1 1 2 2 3 3 Z"; numbers may be nan and inf.
ZAMPrintPath MakePath(const std::string& text);
ZAMPrintPath MakeRectangle(double x, double y, double width, double height);
/// A picture whose pixels are 0xAARRGGBB, colours multiplied by the alpha, as `at` gives them, from the upper left
/// corner.
ZAMRef<ZAMPixelImage> MakeImage(int width, int height, const std::function<std::uint32_t(int x, int y)>& at);
/// A black pen.
ZAMPrintPen MakePen(double width);

using DrawMarks = std::function<void(ZAMPrintCairoGenerator&)>;

/// One page of 100 x 100 points, a pixel each in a picture. Expects that nothing fails.
std::string Draw(ZAMPrintCairoGenerator::Format format, const DrawMarks& marks, ZAMPrintParameters parameters = {});
inline std::string DrawPng(const DrawMarks& marks, const ZAMPrintParameters& parameters = {}) {
    return Draw(ZAMPrintCairoGenerator::Format::Png, marks, parameters);
}
inline std::string DrawPdf(const DrawMarks& marks, const ZAMPrintParameters& parameters = {}) {
    return Draw(ZAMPrintCairoGenerator::Format::Pdf, marks, parameters);
}

/// What `program` says, on both outputs, about a file with the given bytes, whose name stands for {} in `arguments`.
std::string Ask(const std::string& program, const std::string& arguments, const std::string& bytes);
/// The PDF without compression, its page contents as text.
std::string Uncompress(const std::string& pdf);
/// Expects that a strict reader finds no fault in the PDF.
void ExpectSound(const std::string& pdf);
/// How often `text` holds `part`.
int Count(const std::string& text, const std::string& part);
