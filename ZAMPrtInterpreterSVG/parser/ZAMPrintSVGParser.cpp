// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGParser.h"

ZAMPrintSVGParser::~ZAMPrintSVGParser() = default;

int ZAMPrintSVGParser::SetCurrentPath(const ZAMUnicodeString& path) {
    _CurrentPath = path;
    return 1;
}
