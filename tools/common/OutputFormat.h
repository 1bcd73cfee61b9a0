// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

enum class OutputFormat { Pdf, Ps, Eps, Svg, Png, Json };

/// The format with this name, letter case aside. Names are also the endings of files.
std::optional<OutputFormat> FindOutputFormat(std::string_view name);

/// Its name in lower case.
std::string_view GetFormatName(OutputFormat format);

/// The names of all formats, as in "pdf, ps, png".
std::string ListOutputFormats();

/// Whether a file of the format holds more than one page.
bool HasPages(OutputFormat format);

/// Whether the format is nothing to look at on a terminal.
bool IsBinary(OutputFormat format);
