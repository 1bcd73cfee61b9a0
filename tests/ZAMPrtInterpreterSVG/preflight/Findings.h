// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/SvgDecoding.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflight.h"

#include <string>
#include <string_view>

using PreflightMode = ZAMPrintSVGPreflight::Mode;
inline constexpr PreflightMode kAsItStands = PreflightMode::AsItStands;
inline constexpr PreflightMode kPrepared = PreflightMode::Prepared;

/// What is found in a document, as "code subject; code subject", the codes with their lines from the second line on.
inline std::string FindingsOf(const std::string& document, PreflightMode mode, const std::string& path = {}) {
    ZAMPrintSVGPreflight preflight(mode);
    preflight.SetCurrentPath(path.c_str());
    if (preflight.Check(ParseDocument(document)) != 1) {
        return "not checked";
    }
    std::string text;
    for (const ZAMPrintSVGPreflight::Finding& finding : preflight.GetFindings()) {
        text += text.empty() ? "" : "; ";
        text += finding.line > 1 ? std::to_string(finding.line) + " " : "";
        text += std::string(finding.code) + (finding.subject.empty() ? "" : " " + finding.subject);
    }
    return text;
}
