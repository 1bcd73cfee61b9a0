// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMUnicodeString.h"
#include "framework/model/ZAMPrtColourTable.h"

/// Reads one colour value (SVG 1.1, 4.2) into an index of a colour table, to which the colour is added when it is new.
class ZAMPrintSVGColorParser {
public:
    ZAMPrintSVGColorParser() = default;
    ZAMPrintSVGColorParser(const ZAMPrintSVGColorParser&) = delete;
    ZAMPrintSVGColorParser& operator=(const ZAMPrintSVGColorParser&) = delete;
    virtual ~ZAMPrintSVGColorParser();

    /// Borrows the table. Always 1.
    int SetColorTable(ZAMPrtColourTable* table);

    /// Understands "#rgb", "#rrggbb", "rgb(r,g,b)" with whole numbers or whole percentages, and keywords; blanks do not
    /// count. Components are not clamped: they wrap at 256. Eats what it has understood of the text, and callers that
    /// read the same text again see what is left. 1, or -1 with `index` as it was.
    int ParseColorString(ZAMUnicodeString& text, unsigned int& index) const;

private:
    int ParseHexadecimal(ZAMUnicodeString& text, unsigned int& index) const;
    int ParseFunction(std::string_view& rest, unsigned int& index) const;
    int ParseKeyword(std::string_view text, unsigned int& index) const;
    int Store(unsigned int red, unsigned int green, unsigned int blue, unsigned int& index) const;

    ZAMPrtColourTable* _ColorTable = nullptr;
};
