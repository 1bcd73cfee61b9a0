// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVGModelDriver.h"

ZAMPrintSVGModelDriver::~ZAMPrintSVGModelDriver() = default;
