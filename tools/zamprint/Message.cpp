// SPDX-License-Identifier: MIT
#include "tools/zamprint/Message.h"

#include <algorithm>
#include <cstdio>
#include <string>

void PrintMessage(std::string_view text) {
    std::string line = "zamprint: ";
    line += text;
    std::replace_if(
        line.begin(), line.end(), [](unsigned char c) { return c < ' ' || c == 0x7F; }, '?');
    line += '\n';
    std::fputs(line.c_str(), stderr);
}
