// SPDX-License-Identifier: MIT
#include "framework/print/ZAMPrintInterpreter.h"

ZAMPrintInterpreter::ZAMPrintInterpreter(const ZAMString& name) : _Name(name) {}

ZAMPrintInterpreter::~ZAMPrintInterpreter() = default;

int ZAMPrintInterpreter::GetPageCount(unsigned int& count) {
    count = 1;
    return 1;
}

int ZAMPrintInterpreter::GetBounds(float& xMin, float& yMin, float& xMax, float& yMax) {
    xMin = 0.0F;
    yMin = 0.0F;
    return GetSize(xMax, yMax);
}

int ZAMPrintInterpreter::SetCurrentPage(unsigned int page) {
    return page == 1 ? 1 : -1;
}

int ZAMPrintInterpreter::SetAllPages(unsigned char /*all*/) {
    return 1;
}
