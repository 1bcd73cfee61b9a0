// SPDX-License-Identifier: MIT
#include "tools/zamprint/Manual.h"

#include "tools/zamprint/OptionTable.h"

#include <string_view>

namespace {

// As roff reads it: a minus sign that can be searched for and copied, no backslash of its own, no command.
std::string Escape(std::string_view text) {
    std::string escaped = text.starts_with('.') || text.starts_with('\'') ? "\\&" : "";
    for (const char c : text) {
        escaped += c == '-' ? "\\-" : c == '\\' ? "\\e" : std::string(1, c);
    }
    return escaped;
}

std::string WriteOption(const OptionRow& row) {
    std::string names;
    for (std::string_view rest = row.names; !rest.empty();) {
        const std::size_t comma = std::min(rest.find(','), rest.size());
        names.append(names.empty() ? "" : ", ").append("\\fB").append(Escape(rest.substr(0, comma))).append("\\fR");
        rest.remove_prefix(std::min(comma + 1, rest.size()));
    }
    if (row.value != nullptr) {
        names.append(" \\fI").append(Escape(row.value)).append("\\fR");
    }
    return ".TP\n" + names + "\n" + Escape(row.help) + ".\n";
}

constexpr std::string_view kBegin = R"(.TH ZAMPRINT 1 "" "zamprint )" ZAM_VERSION R"(" "User Commands"
.SH NAME
zamprint \- print SVG drawings
.SH SYNOPSIS
.B zamprint
[\fIoptions\fR] [\fIFILE\fR ...]
.SH DESCRIPTION
Reads SVG documents, also compressed ones, and writes them as PDF, PostScript, EPS, SVG or PNG, or the JSON text of their
print model.
Without a file, or for \-, standard input is read.
A document of several svg elements has that many pages; several documents become the pages of one PDF or PostScript file,
or get outputs of their own with \fB\-\-output\-dir\fR.
.PP
An output appears when it is complete: it is written beside its place and renamed, and a failed one is removed.
.SH OPTIONS
)";

constexpr std::string_view kEnd = R"(.SH EXIT STATUS
0 when all was printed, 1 when some input failed, 2 when the usage was wrong.
Messages go to standard error, with the file, the line and the column where there is one.
.SH ENVIRONMENT
.TP
.B SOURCE_DATE_EPOCH
The time that outputs bear, in seconds since 1970: with it the same input gives the same bytes.
.SH EXAMPLES
.nf
zamprint drawing.svg \-o drawing.pdf
zamprint drawing.svg \-o drawing.png \-d 300
zamprint *.svg \-o all.pdf \-\-page\-size A4 \-\-margin 1cm
zamprint *.svg \-\-output\-dir prints \-f png
.fi
)";

} // namespace

std::string WriteManual() {
    std::string page(kBegin);
    for (const OptionRow& row : GetOptionTable()) {
        page += WriteOption(row);
    }
    for (const OptionRow& row : GetInformationTable()) {
        page += WriteOption(row);
    }
    return page.append(kEnd);
}
