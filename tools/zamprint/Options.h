// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMAllocationBudget.h"
#include "framework/print/ZAMPrintColour.h"
#include "tools/zamprint/AllowedFiles.h"
#include "tools/zamprint/OutputFormat.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

/// The file name that stands for standard input or standard output.
inline constexpr const char* kStandardStream = "-";

/// What the user asked for, checked value by value.
struct Options {
    std::string input = kStandardStream;
    std::string output = kStandardStream;
    std::optional<OutputFormat> format;
    std::optional<double> width;  ///< of a page: pixels for PNG, else user units, 90 to the inch
    std::optional<double> height; ///< in the same units
    double resolution = 90.0;     ///< pixels to the inch
    std::optional<ZAMPrintColour> background;
    AllowedFiles allowedFiles = AllowedFiles::Document;
    std::size_t mostElements = ZAMAllocationBudget::kElements; ///< that are reused, besides 10 for each that is read

    /// The format asked for, else the one that the output's ending names, else PDF.
    [[nodiscard]] OutputFormat GetFormat() const {
        if (format) {
            return *format;
        }
        const std::string ending = std::filesystem::path(output).extension().string();
        return FindOutputFormat(ending.empty() ? ending : ending.substr(1)).value_or(OutputFormat::Pdf);
    }
};
