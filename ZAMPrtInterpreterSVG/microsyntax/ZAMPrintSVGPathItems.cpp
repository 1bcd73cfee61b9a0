// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGPathItems.h"

#include "framework/base/ZAMUnicodeString.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace {

constexpr std::string_view kCommandLetters = "MmZzLlCcSsHhVvQqTtAa";

constexpr std::array<bool, 256> EndsItemTable() {
    std::array<bool, 256> table{};
    for (const char letter : kCommandLetters) {
        table.at(static_cast<unsigned char>(letter)) = true;
    }
    table.at(';') = true;
    return table;
}
constexpr std::array<bool, 256> kEndsItem = EndsItemTable();

std::size_t ItemLength(std::string_view text) {
    std::size_t length = 1;
    while (length < text.size() && !kEndsItem[static_cast<unsigned char>(text[length])]) {
        ++length;
    }
    return length;
}

// "ſ", the long s: the one character beside the letters that case folding makes a command letter.
constexpr std::string_view kLongS = "\u017F";

// Of a text that does not start with a semicolon.
ZAMPrintSVGPathItems::Item ReadItem(std::string_view text) {
    const char letter = text.front();
    if (!kEndsItem[static_cast<unsigned char>(letter)]) {
        return text.starts_with(kLongS) ? ZAMPrintSVGPathItems::Item{'S', false, text.substr(kLongS.size())}
                                        : ZAMPrintSVGPathItems::Item{'\0', false, {}};
    }
    const bool relative = letter >= 'a';
    return {static_cast<char>(relative ? letter - ('a' - 'A') : letter), relative, text.substr(1)};
}

} // namespace

bool ZAMPrintSVGPathItems::HoldsItem(std::string_view data) {
    return std::ranges::any_of(data, [](char c) { return kEndsItem[static_cast<unsigned char>(c)]; });
}

ZAMPrintSVGPathItems::ZAMPrintSVGPathItems(std::string_view data) : _Rest(data) {
    if (data.find("ee") != std::string_view::npos) { // "eee", or the "ee-" that becomes "eeee"
        _Modified = ModifyPathString(data);
        _Rest = _Modified;
    }
}

std::string ZAMPrintSVGPathItems::ModifyPathString(std::string_view data) {
    ZAMUnicodeString text(data);
    text.ReplaceAll("e-", "eee");
    text.ReplaceAll("-", " -");
    text.ReplaceAll(",", " ");
    text.ReplaceAll("eee", "e-");
    return std::string(text.View());
}

bool ZAMPrintSVGPathItems::Next(Item& item) {
    while (!_Rest.empty() && _Rest.front() == ';') {
        _Rest.remove_prefix(1);
    }
    if (_Rest.empty()) {
        return false;
    }
    const std::size_t length = ItemLength(_Rest);
    item = ReadItem(_Rest.substr(0, length));
    _Rest.remove_prefix(length);
    return true;
}
