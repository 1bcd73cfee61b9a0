// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightReport.h"

#include <algorithm>
#include <tuple>

namespace {

// The beginning of a long text, cut between characters.
std::string Shortened(std::string_view text) {
    constexpr std::size_t kMost = 100;
    if (text.size() <= kMost) {
        return std::string(text);
    }
    std::size_t end = kMost;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) {
        --end;
    }
    return std::string(text.substr(0, end)) + "...";
}

std::string Fill(std::string_view pattern, std::string_view subject, std::string_view detail) {
    std::string text;
    for (std::size_t at = pattern.find('%'); at != std::string_view::npos; at = pattern.find('%')) {
        text.append(pattern.substr(0, at)).append(pattern.substr(at, 2) == "%s" ? subject : detail);
        pattern.remove_prefix(at + 2);
    }
    return text.append(pattern);
}

} // namespace

void ZAMPrintSVGPreflightReport::Add(ZAMPrintSVGFault fault, const ZAMLightXmlElementItf& element,
                                     std::string_view subject, std::string_view detail) {
    const ZAMPrintSVGFaultRow& row = ZAMPrintSVGGetFaults()[static_cast<std::size_t>(fault)];
    if (++_Counts[row.code] > ZAMPrintSVGPreflight::kMostOfAKind) {
        ++_UnlistedCount;
        return;
    }
    const std::string about = Shortened(subject);
    const std::string more = Shortened(detail);
    _Findings.push_back({element.GetLine(), element.GetColumn(), row.code, Shortened(element.GetName()), about,
                         Fill(row.what, about, more), Fill(row.instead, about, more)});
}

void ZAMPrintSVGPreflightReport::Sort() {
    std::ranges::stable_sort(_Findings, {}, [](const ZAMPrintSVGPreflight::Finding& finding) {
        return std::tuple(finding.line, finding.column);
    });
}
