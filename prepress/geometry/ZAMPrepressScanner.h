// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// Eats a text of SVG's number syntax from the front. What takes something gives it; where it is not there the text
/// stays as it is.
class ZAMPrepressScanner {
public:
    explicit ZAMPrepressScanner(std::string_view text) : _Rest(text) {}

    [[nodiscard]] std::string_view GetRest() const { return _Rest; }
    [[nodiscard]] bool AtEnd() const { return _Rest.empty(); }
    [[nodiscard]] char Peek() const { return _Rest.empty() ? '\0' : _Rest.front(); }

    static constexpr bool IsSpace(char c) { return c == ' ' || c == '\n' || c == '\t' || c == '\r' || c == '\f'; }
    static constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }
    static constexpr bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

    void SkipSpace() {
        while (!_Rest.empty() && IsSpace(_Rest.front())) {
            _Rest.remove_prefix(1);
        }
    }
    /// White space with at most one comma in it; true when there was a comma.
    bool SkipSeparator() {
        SkipSpace();
        if (!Take(',')) {
            return false;
        }
        SkipSpace();
        return true;
    }
    bool Take(char c) {
        if (Peek() != c || _Rest.empty()) {
            return false;
        }
        _Rest.remove_prefix(1);
        return true;
    }
    char TakeAny() {
        const char c = _Rest.front();
        _Rest.remove_prefix(1);
        return c;
    }
    /// The longest decimal number (SVG 1.1, 8.3.9); empty when the text starts with none.
    std::string_view TakeNumber();
    /// One digit, "0" or "1"; empty for anything else. An arc's flags need nothing between them.
    std::string_view TakeFlag() { return Peek() == '0' || Peek() == '1' ? TakePrefix(1) : std::string_view(); }
    /// The letters that the text starts with.
    std::string_view TakeWord();

private:
    std::string_view TakePrefix(std::size_t length) {
        const std::string_view prefix = _Rest.substr(0, length);
        _Rest.remove_prefix(length);
        return prefix;
    }

    std::string_view _Rest;
};

/// The value of what TakeNumber gave. What is too large becomes an infinity.
[[nodiscard]] double ZAMPrepressNumber(std::string_view number);
