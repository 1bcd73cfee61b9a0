// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoNameFilter.h"

#include <algorithm>

namespace {

// As cairo begins a dictionary of pictures, and an entry of it: " /x5 5 0 R".
constexpr std::string_view kBeginning = "\n   /XObject <<";
constexpr std::string_view kEntryBeginning = " /x";
constexpr std::string_view kEntryEnd = " 0 R";
constexpr std::size_t kLongestEntry = 40;

/// Whether the text is a whole entry: its number, a blank and the number again stand between beginning and end.
bool IsEntry(std::string_view text) {
    if (!text.starts_with(kEntryBeginning) || !text.ends_with(kEntryEnd)) {
        return false;
    }
    const std::string_view numbers =
        text.substr(kEntryBeginning.size(), text.size() - kEntryBeginning.size() - kEntryEnd.size());
    const std::size_t blank = numbers.find(' ');
    return blank != 0 && blank != std::string_view::npos && numbers.find_first_not_of("0123456789") == blank &&
           numbers.substr(0, blank) == numbers.substr(blank + 1);
}

} // namespace

bool ZAMPrintCairoNameFilter::Write(std::string_view bytes) {
    _Held.append(bytes);
    while (_IsInside ? ReadEntry() : ReadOutside()) {
    }
    _Held.erase(0, _Passed);
    _Passed = 0;
    return _Stream.IsGood();
}

bool ZAMPrintCairoNameFilter::Flush() {
    Pass(_Held.size() - _Passed);
    return _Stream.IsGood();
}

/// Goes on to the next dictionary; false when more bytes are needed.
bool ZAMPrintCairoNameFilter::ReadOutside() {
    const std::size_t at = _Held.find(kBeginning, _Passed);
    if (at != std::string::npos) {
        Pass(at + kBeginning.size() - _Passed);
        _Names.clear();
        _IsInside = true;
        return true;
    }
    // What is left may be the first part of a beginning.
    const std::size_t left = _Held.size() - _Passed;
    Pass(left - std::min(left, kBeginning.size() - 1));
    return false;
}

/// Passes an entry on, or blanks when it was there; false when more bytes are needed.
bool ZAMPrintCairoNameFilter::ReadEntry() {
    const std::string_view left = std::string_view(_Held).substr(_Passed, kLongestEntry);
    const std::size_t end = left.find(kEntryEnd);
    if (end == std::string_view::npos && left.size() < kLongestEntry && left.find('>') == std::string_view::npos) {
        return false;
    }
    const std::string_view entry = end == std::string_view::npos ? left : left.substr(0, end + kEntryEnd.size());
    if (!IsEntry(entry)) {
        _IsInside = false;
        return true;
    }
    if (!_Names.emplace(entry).second) {
        std::fill_n(_Held.begin() + static_cast<std::ptrdiff_t>(_Passed), entry.size(), ' ');
    }
    Pass(entry.size());
    return true;
}

void ZAMPrintCairoNameFilter::Pass(std::size_t count) {
    _Stream.Write(reinterpret_cast<const unsigned char*>(_Held.data()) + _Passed, count);
    _Passed += count;
}
