// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/text/ZAMPrepressTextStyles.h"

#include <string_view>
#include <vector>

/// What is measured of a text in one font. Lengths are in units; the layouts are those of the render.
namespace ZAMPrepressText {

/// How far the pen gets along the line, spacing between the characters included.
[[nodiscard]] double GetAdvance(std::string_view text, const ZAMTextStyle& style);

/// A font at a size of 1.
[[nodiscard]] ZAMPrepressFontMetrics Measure(const ZAMTextStyle& style);

/// How many bytes make up each of the pieces of the text that belong together on paper: mostly one character, but those
/// with their marks, too. They add up to the length of the text.
[[nodiscard]] std::vector<std::size_t> GetClusters(std::string_view text, const ZAMPrepressTextSetting& setting);

} // namespace ZAMPrepressText
