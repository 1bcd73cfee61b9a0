// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"

#include <cstddef>
#include <string>
#include <string_view>

/// The framework's byte string: names of interpreters and other texts that are never shown to a reader.
using ZAMString = std::string;

/// The framework's Unicode string, UTF-8 inside. Positions and lengths are in bytes unless the name says otherwise;
/// searches heed letter case, `Compare` does not. Its readers take a view, so a text need not be copied to be read.
class ZAM_EXPORT ZAMUnicodeString {
public:
    ZAMUnicodeString() = default;
    // NOLINTNEXTLINE(google-explicit-constructor): stands wherever a text is asked for.
    ZAMUnicodeString(const char* text) : _Text(text == nullptr ? "" : text) {}
    explicit ZAMUnicodeString(std::string_view text) : _Text(text) {}
    ZAMUnicodeString& operator=(std::string_view text) {
        _Text = text;
        return *this;
    }

    // NOLINTNEXTLINE(google-explicit-constructor): reading a string never costs a copy.
    operator std::string_view() const noexcept { return _Text; }
    [[nodiscard]] std::string_view View() const noexcept { return _Text; }
    /// The text with a terminating NUL; valid until the string changes.
    [[nodiscard]] const char* CastToCharPtr() const noexcept { return _Text.c_str(); }

    [[nodiscard]] bool IsEmpty() const noexcept { return _Text.empty(); }
    /// The number of code points.
    [[nodiscard]] int GetLengthInChar() const noexcept;

    /// 2 identical, 1 equal but for letter case (Unicode simple folding), else 0.
    [[nodiscard]] int Compare(std::string_view other) const noexcept;

    /// Reads the number at the start of the text as the formatted scan with "%le" (or "%u") does; any other format
    /// reads nothing. 1 when a number was stored, 0 when the text starts with none, -1 when it is empty.
    int ConvertToNum(double* value, std::string_view format) const noexcept;
    int ConvertToNum(unsigned int* value, std::string_view format) const noexcept;

    /// The first position of `pattern` at or after `from`, or -1.
    [[nodiscard]] int SearchSubString(std::string_view pattern, std::size_t from = 0) const noexcept;

    /// Removes `count` bytes from `position`; what lies outside the text is not there to be removed.
    void Remove(std::size_t position, std::size_t count);

    /// Replaces every occurrence of `pattern`, from the left and without looking at what was put in; an empty pattern
    /// occurs nowhere. The two names do the same.
    void ReplaceAll(std::string_view pattern, std::string_view replacement);
    void ReplaceSubString(std::string_view pattern, std::string_view replacement) { ReplaceAll(pattern, replacement); }

    /// Identical texts; letter case counts.
    bool operator==(const ZAMUnicodeString&) const = default;

private:
    std::string _Text;
};
