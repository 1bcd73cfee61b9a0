// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGParser.h"

ZAMPrintSVGParser::~ZAMPrintSVGParser() = default;
