// SPDX-License-Identifier: MIT
#include "tools/common/OutputFormat.h"

#include "framework/base/ZAMTextCompare.h"

#include <algorithm>

namespace {

struct FormatRow {
    std::string_view name;
    OutputFormat format;
};

constexpr FormatRow kFormats[] = {
    {"pdf", OutputFormat::Pdf}, {"ps", OutputFormat::Ps},   {"eps", OutputFormat::Eps},
    {"svg", OutputFormat::Svg}, {"png", OutputFormat::Png}, {"json", OutputFormat::Json},
};

} // namespace

std::optional<OutputFormat> FindOutputFormat(std::string_view name) {
    for (const FormatRow& row : kFormats) {
        if (ZAMTextMatches(row.name, name)) {
            return row.format;
        }
    }
    return std::nullopt;
}

std::string_view GetFormatName(OutputFormat format) {
    return std::ranges::find(kFormats, format, &FormatRow::format)->name;
}

std::string ListOutputFormats() {
    std::string list;
    for (const FormatRow& row : kFormats) {
        list += list.empty() ? "" : ", ";
        list += row.name;
    }
    return list;
}

bool HasPages(OutputFormat format) {
    return format == OutputFormat::Pdf || format == OutputFormat::Ps;
}

bool IsBinary(OutputFormat format) {
    return format != OutputFormat::Json && format != OutputFormat::Svg;
}
