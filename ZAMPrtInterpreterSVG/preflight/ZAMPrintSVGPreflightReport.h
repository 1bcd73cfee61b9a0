// SPDX-License-Identifier: MIT
#pragma once

#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGFault.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflight.h"

#include <map>
#include <string_view>
#include <vector>

/// Puts findings into words and keeps so many of each code.
class ZAMPrintSVGPreflightReport {
public:
    /// Borrows both.
    ZAMPrintSVGPreflightReport(std::vector<ZAMPrintSVGPreflight::Finding>& findings, std::size_t& unlistedCount)
        : _Findings(findings), _UnlistedCount(unlistedCount) {}

    /// `subject` is what the finding is about; texts of the document are shortened and may be of any length.
    void Add(ZAMPrintSVGFault fault, const ZAMLightXmlElementItf& element, std::string_view subject = {},
             std::string_view detail = {});

    /// Brings the findings into the order of the document.
    void Sort();

private:
    std::vector<ZAMPrintSVGPreflight::Finding>& _Findings;
    std::size_t& _UnlistedCount;
    std::map<std::string_view, std::size_t> _Counts; ///< by code
};
