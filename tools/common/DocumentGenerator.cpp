// SPDX-License-Identifier: MIT
#include "tools/common/DocumentGenerator.h"

int DocumentGenerator::BeginDocument(const ZAMPrintParameters& parameters) {
    ++_Drawings;
    return _Drawings == 1 ? _Generator.BeginDocument(parameters) : 1;
}

std::string DocumentGenerator::NameInDocument(std::string_view name) const {
    return std::to_string(_Drawings).append(1, ':').append(name);
}
