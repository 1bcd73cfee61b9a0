// SPDX-License-Identifier: MIT
#pragma once

#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightReport.h"

/// Reports values that SVG has and the interpreter does not read, or reads otherwise, in documents as they stand.
namespace ZAMPrintSVGPreflightValues {

void CheckProperty(const ZAMLightXmlElementItf& element, std::string_view name, std::string_view value,
                   ZAMPrintSVGPreflightReport& report);

/// A coordinate, length or list of either, by the attribute's name.
void CheckLength(const ZAMLightXmlElementItf& element, std::string_view name, std::string_view value,
                 ZAMPrintSVGPreflightReport& report);

/// The attributes whose numbers may run together.
void CheckNumbers(const ZAMLightXmlElementItf& element, std::string_view name, std::string_view value,
                  ZAMPrintSVGPreflightReport& report);

} // namespace ZAMPrintSVGPreflightValues
