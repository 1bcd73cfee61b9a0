// SPDX-License-Identifier: MIT
#include "tools/zamprint/DocumentGenerator.h"

int DocumentGenerator::BeginDocument(const ZAMPrintParameters& parameters) {
    if (_Begun) {
        return 1;
    }
    _Begun = true;
    return _Generator.BeginDocument(parameters);
}
