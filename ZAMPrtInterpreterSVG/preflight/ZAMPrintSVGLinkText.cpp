// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGLinkText.h"

#include "framework/base/ZAMTextCompare.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGStyleText.h"

std::optional<ZAMPrintSVGLinkText> ZAMPrintSVGLinkText::Read(std::string_view value) {
    constexpr std::string_view kBegin = "url(";
    value = ZAMPrintSVGStyleText::Trimmed(value);
    const std::size_t end = value.find(')');
    if (end == std::string_view::npos || !ZAMTextMatches(value.substr(0, kBegin.size()), kBegin)) {
        return std::nullopt;
    }
    const std::string_view inside = value.substr(kBegin.size(), end - kBegin.size());
    std::string_view target = ZAMPrintSVGStyleText::Trimmed(inside);
    const bool isQuoted = target.size() > 1 && (target.front() == '"' || target.front() == '\'');
    target = isQuoted ? target.substr(1, target.size() - 2) : target;
    const bool hasFallback = end + 1 < value.size();
    return ZAMPrintSVGLinkText{target, value.starts_with("url(#") && target == inside && !hasFallback, hasFallback};
}
