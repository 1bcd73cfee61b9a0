// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMUnicodeString.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightReport.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

/// Reads the pictures that a document refers to, each once, and reports those that cannot be had, and why.
class ZAMPrintSVGPreflightPictures {
public:
    using Mode = ZAMPrintSVGPreflight::Mode;

    /// Borrows the report. The path is that of the document's file.
    ZAMPrintSVGPreflightPictures(Mode mode, const ZAMUnicodeString& path, ZAMPrintSVGPreflightReport& report)
        : _Mode(mode), _CurrentPath(path), _Report(report) {}

    /// The text of the reference must outlive this object.
    void Check(const ZAMLightXmlElementItf& image, std::string_view reference);

private:
    using Trouble = std::optional<ZAMPrintSVGFault>;

    [[nodiscard]] Trouble Inspect(std::string_view reference) const;
    [[nodiscard]] Trouble InspectData(std::string_view reference) const;
    [[nodiscard]] Trouble InspectFile(std::string_view name) const;
    /// A file of that name or one beside the document; empty when there is none that may be read.
    [[nodiscard]] std::string FindFile(std::string_view name) const;
    [[nodiscard]] bool IsRead(std::string_view reference) const;

    Mode _Mode;
    ZAMUnicodeString _CurrentPath;
    ZAMPrintSVGPreflightReport& _Report;
    std::unordered_map<std::string_view, Trouble> _Known;
};
