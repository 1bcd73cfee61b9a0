// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoHeaderFilter.h"

namespace {

// A header is never so long; without its mark nothing more is held back.
constexpr std::size_t kLongestHeader = std::size_t{1} << 20U;

} // namespace

bool ZAMPrintCairoHeaderFilter::Write(std::string_view bytes) {
    if (_IsBehind) {
        return Pass(bytes);
    }
    // The mark may have begun in the bytes before.
    const std::size_t from = _Held.size() < _Mark.size() ? 0 : _Held.size() - _Mark.size() + 1;
    _Held.append(bytes);
    const std::size_t found = _Held.find(_Mark, from);
    if (found == std::string::npos) {
        return _Held.size() <= kLongestHeader || Flush();
    }
    _IsBehind = true;
    const std::size_t end = found + _Mark.size();
    std::string header = _Held.substr(0, end);
    _Edit(header);
    return Pass(header) && Pass(std::string_view(_Held).substr(end));
}

bool ZAMPrintCairoHeaderFilter::Flush() {
    if (_IsBehind) {
        return _Stream.IsGood();
    }
    _IsBehind = true;
    return Pass(_Held);
}

bool ZAMPrintCairoHeaderFilter::Pass(std::string_view bytes) {
    return _Stream.Write(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
}
