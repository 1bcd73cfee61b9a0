// SPDX-License-Identifier: MIT
#include "framework/base/ZAMJsonWriter.h"

#include <array>
#include <charconv>
#include <cmath>

void ZAMJsonWriter::Begin(char bracket, Layout layout) {
    BeforeValue();
    _Out.put(bracket);
    _Levels.push_back({layout, true});
}

void ZAMJsonWriter::End(char bracket) {
    const Level ended = _Levels.back();
    _Levels.pop_back();
    if (ended.layout == Layout::Lines && !ended.empty) {
        NewLine();
    }
    _Out.put(bracket);
    if (_Levels.empty()) {
        _Out.put('\n');
    }
}

void ZAMJsonWriter::Key(std::string_view name) {
    BeforeValue();
    Quote(name);
    _Out << ": ";
    _AfterKey = true;
}

void ZAMJsonWriter::BeforeValue() {
    if (_AfterKey) {
        _AfterKey = false;
        return;
    }
    if (_Levels.empty()) {
        return;
    }
    Level& level = _Levels.back();
    if (!level.empty) {
        _Out << (level.layout == Layout::Lines ? "," : ", ");
    }
    level.empty = false;
    if (level.layout == Layout::Lines) {
        NewLine();
    }
}

void ZAMJsonWriter::NewLine() {
    _Out.put('\n');
    for (const Level& level : _Levels) {
        if (level.layout == Layout::Lines) {
            _Out << "  ";
        }
    }
}

void ZAMJsonWriter::String(std::string_view text) {
    BeforeValue();
    Quote(text);
}

void ZAMJsonWriter::Quote(std::string_view text) {
    constexpr std::string_view kHexDigits = "0123456789abcdef";
    _Out.put('"');
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            _Out.put('\\').put(c);
        } else if (c == '\n') {
            _Out << "\\n";
        } else if (byte < 0x20) {
            _Out << "\\u00" << kHexDigits[byte >> 4U] << kHexDigits[byte & 0xFU];
        } else {
            _Out.put(c);
        }
    }
    _Out.put('"');
}

void ZAMJsonWriter::Number(double value) {
    if (std::isnan(value)) {
        String("nan");
        return;
    }
    if (std::isinf(value)) {
        String(value > 0 ? "inf" : "-inf");
        return;
    }
    BeforeValue();
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    _Out.write(digits.data(), end - digits.data());
}

void ZAMJsonWriter::Integer(std::int64_t value) {
    BeforeValue();
    std::array<char, 32> digits{}; // the stream's own writing heeds its locale and groups digits
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    _Out.write(digits.data(), end - digits.data());
}

void ZAMJsonWriter::Null() {
    BeforeValue();
    _Out << "null";
}

void ZAMJsonWriter::Numbers(std::initializer_list<double> values) {
    BeginArray();
    for (const double value : values) {
        Number(value);
    }
    EndArray();
}
