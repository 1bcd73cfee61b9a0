// SPDX-License-Identifier: MIT
// Lengths and coordinates of the parser's own document.
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGParser.h"

int ZAMPrintSVGParser::GetLength(std::string_view text, double& result) const {
    return Lengths().GetLength(text, result);
}

int ZAMPrintSVGParser::GetHorLength(std::string_view text, double& result) const {
    return Lengths().GetHorLength(text, result);
}

int ZAMPrintSVGParser::GetVertLength(std::string_view text, double& result) const {
    return Lengths().GetVertLength(text, result);
}

int ZAMPrintSVGParser::GetLength(const ZAMLightXmlElementItf& element, const ZAMLightXmlName& name,
                                 double& result) const {
    return Lengths().GetLength(element.GetAttribute(name), result);
}

int ZAMPrintSVGParser::GetCoordinate(const ZAMLightXmlElementItf& element, const ZAMLightXmlName& name,
                                     double& result) const {
    return GetLength(element, name, result);
}

int ZAMPrintSVGParser::GetHorLength(const ZAMLightXmlElementItf& element, const ZAMLightXmlName& name,
                                    double& result) const {
    return Lengths().GetHorLength(element.GetAttribute(name), result);
}

int ZAMPrintSVGParser::GetVertLength(const ZAMLightXmlElementItf& element, const ZAMLightXmlName& name,
                                     double& result) const {
    return Lengths().GetVertLength(element.GetAttribute(name), result);
}

int ZAMPrintSVGParser::GetXCoordinate(const ZAMLightXmlElementItf& element, const ZAMLightXmlName& name,
                                      double& result) const {
    return Lengths().GetXCoordinate(element.GetAttribute(name), result);
}

int ZAMPrintSVGParser::GetYCoordinate(const ZAMLightXmlElementItf& element, const ZAMLightXmlName& name,
                                      double& result) const {
    return Lengths().GetYCoordinate(element.GetAttribute(name), result);
}
