// SPDX-License-Identifier: MIT
#include "tools/common/Message.h"

#include <algorithm>
#include <cstdio>
#include <string>

namespace {

// Of a terminal: to the beginning of the line, and what stands there goes.
constexpr const char* kClearLine = "\r\033[K";

bool hasStatusLine = false;

} // namespace

std::string WithoutControls(std::string_view text) {
    std::string line(text);
    std::replace_if(
        line.begin(), line.end(), [](unsigned char c) { return c < ' ' || c == 0x7F; }, '?');
    return line;
}

void PrintMessage(std::string_view text) {
    const std::string line =
        (hasStatusLine ? kClearLine : "") + std::string("zamprint: ") + WithoutControls(text) + "\n";
    std::fputs(line.c_str(), stderr);
}

void BeginStatusLine() {
    hasStatusLine = true;
}

void PrintStatus(std::string_view text) {
    std::fputs((kClearLine + WithoutControls(text)).c_str(), stderr);
}

void EndStatusLine() {
    if (hasStatusLine) {
        std::fputs(kClearLine, stderr);
    }
    hasStatusLine = false;
}
