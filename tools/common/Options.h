// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMAllocationBudget.h"
#include "framework/mathematics/ZAMMathVector2D.h"
#include "framework/print/ZAMPrintColour.h"
#include "framework/print/ZAMPrintParameters.h"
#include "tools/common/AllowedFiles.h"
#include "tools/common/OutputFormat.h"

#include <cstddef>
#include <filesystem>
#include <limits>
#include <optional>
#include <string>
#include <vector>

/// The file name that stands for standard input or standard output.
inline constexpr const char* kStandardStream = "-";

/// When to show how far the work has come.
enum class ProgressMode : std::uint8_t { Auto, Always, Never };

/// What the user asked for, checked value by value.
struct Options {
    std::vector<std::string> inputs; ///< one at least
    std::string output = kStandardStream;
    std::string outputDirectory; ///< for an output of each input; empty for one output of all
    std::optional<OutputFormat> format;
    std::optional<ZAMMathVector2D> paper; ///< upright, in points; without one pages have their drawings' sizes
    bool isLandscape = false;
    double margin = 0.0;            ///< on each side of the page, in points
    std::optional<ZAMPrintFit> fit; ///< else Shrink on a paper, Page on a page of the drawing's size
    double scale = 1.0;
    std::optional<double> width;  ///< of a page: pixels for PNG, else user units, 90 to the inch
    std::optional<double> height; ///< in the same units
    double resolution = 90.0;     ///< pixels to the inch
    std::optional<ZAMPrintColour> background;
    AllowedFiles allowedFiles = AllowedFiles::Document;
    std::size_t mostElements = ZAMLimits::kReusedElements; ///< that are reused, and more in large documents
    bool isUnlimited = false;                              ///< limits that protect time and memory are lifted
    bool isPrepared = true;                                ///< documents are rewritten before they are interpreted
    std::optional<std::string> title;                      ///< else the document's
    std::string author;
    std::size_t jobs = 0; ///< documents at once; 0 for as many as there are processors
    ProgressMode progress = ProgressMode::Auto;
    bool isChecked = false; ///< documents are not printed: a report says what would not come out as it is drawn
    bool isStrict = false;  ///< a report with anything in it is a failure
    std::optional<std::string> information; ///< a text that is asked for instead of a print
    bool isQuiet = false;                   ///< no messages but errors, and no progress

    [[nodiscard]] std::size_t GetMostPathCommands() const {
        return isUnlimited ? std::numeric_limits<std::size_t>::max() : ZAMLimits::kPathCommands;
    }

    /// The format asked for, else the one that the output's ending names, else PDF.
    [[nodiscard]] OutputFormat GetFormat() const {
        if (format) {
            return *format;
        }
        const std::string ending = std::filesystem::path(output).extension().string();
        return FindOutputFormat(ending.empty() ? ending : ending.substr(1)).value_or(OutputFormat::Pdf);
    }
};
