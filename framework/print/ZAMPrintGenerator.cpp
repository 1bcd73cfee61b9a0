// SPDX-License-Identifier: MIT
#include "framework/print/ZAMPrintGenerator.h"

ZAMPrintGenerator::~ZAMPrintGenerator() = default;
