// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGViewBoxParser.h"

#include "framework/base/ZAMNumberReading.h"

#include <algorithm>

int ZAMPrintSVGViewBoxParser::ParseViewBoxString(std::string_view text, double& minX, double& minY, double& width,
                                                 double& height) {
    if (text.empty()) {
        return -1;
    }
    // The first three must be followed by a blank; what no blank follows is left for the height, so that "0,0,100,50"
    // is a height of 0 and nothing else.
    for (double* value : {&minX, &minY, &width, &height}) {
        text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
        const std::size_t blank = text.find(' ');
        if (value != &height && blank == std::string_view::npos) {
            continue;
        }
        ZAMReadDouble(text.substr(0, blank), *value);
        text.remove_prefix(std::min(blank, text.size()));
    }
    return 1;
}
