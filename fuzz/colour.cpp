// SPDX-License-Identifier: MIT
// Colours; what was understood is eaten, and what is left is read again.
#include "framework/model/ZAMPrtAllElements.h"
#include "fuzz/Value.h"
#include "prepress/style/ZAMPrepressColour.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGColorParser.h"

#include <cstddef>
#include <cstdint>
#include <list>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const FuzzedValue value(data, size);
    const auto colours = ZAMNew<ZAMPrtColourTable>();
    ZAMPrintSVGColorParser parser;
    parser.SetColorTable(colours.Get());
    ZAMUnicodeString text(value.text);
    unsigned int index = 0;
    parser.ParseColorString(text, index);
    parser.ParseColorString(text, index);
    std::list<std::string> texts;
    ZAMPrepressCssTokenizer tokens(value.text, texts);
    if (const auto colour = ZAMPrepressColour::Parse(tokens)) {
        static_cast<void>(colour->ToText());
    }
    return 0;
}
