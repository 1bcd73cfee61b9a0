// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/base64/ConvertFromBase64Buffer.h"

#include <array>
#include <string_view>

namespace {

constexpr unsigned char kPadding = 64;
constexpr unsigned char kInvalid = 100;

constexpr std::array<unsigned char, 256> MakeTable() {
    constexpr std::string_view kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::array<unsigned char, 256> table{};
    table.fill(kInvalid);
    unsigned char value = 0;
    for (const char c : kAlphabet) {
        table.at(static_cast<unsigned char>(c)) = value++;
    }
    table['='] = kPadding;
    return table;
}

constexpr std::array<unsigned char, 256> kTable = MakeTable();

} // namespace

int ConvertFromBase64Buffer(const char* text, unsigned int textLength, unsigned char* output,
                            unsigned int& outputLength) {
    if (text == nullptr || textLength == 0 || output == nullptr) {
        return 0;
    }
    outputLength = 0;
    const auto put = [&](unsigned int bits) { output[outputLength++] = static_cast<unsigned char>(bits & 0xFFU); };
    for (; textLength >= 4; textLength -= 4, text += 4) {
        std::array<unsigned int, 4> s{};
        for (std::size_t i = 0; i < s.size(); ++i) {
            s.at(i) = kTable.at(static_cast<unsigned char>(text[i]));
            if (s.at(i) == kInvalid) {
                return -1;
            }
        }
        if (s[0] == kPadding) {
            return 1;
        }
        if (s[1] == kPadding) {
            put(s[0] << 2U);
            return 1;
        }
        put(s[0] << 2U | s[1] >> 4U);
        if (s[2] == kPadding) {
            put(s[1] << 4U);
            return 1;
        }
        put(s[1] << 4U | s[2] >> 2U);
        put(s[2] << 6U | (s[3] == kPadding ? 0U : s[3]));
    }
    return 1;
}
