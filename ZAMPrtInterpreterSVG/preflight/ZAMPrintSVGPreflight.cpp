// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflight.h"

#include "framework/base/ZAMAllocationBudget.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightReport.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightWalk.h"

#include <optional>

int ZAMPrintSVGPreflight::SetCurrentPath(const ZAMUnicodeString& path) {
    _CurrentPath = path;
    return 1;
}

int ZAMPrintSVGPreflight::Check(const ZAMLightXmlElementItf& root) {
    _Findings.clear();
    _UnlistedCount = 0;
    std::optional<ZAMAllocationBudget> budget; // for the pictures
    if (ZAMAllocationBudget::GetCurrent() == nullptr) {
        budget.emplace();
    }
    ZAMPrintSVGPreflightReport report(_Findings, _UnlistedCount);
    try {
        const bool hasDrawing = ZAMPrintSVGPreflightWalk(_Mode, _CurrentPath, report).Check(root);
        report.Sort();
        return hasDrawing ? 1 : 0;
    } catch (...) {
        return -1;
    }
}
