// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoStream.h"

bool ZAMPrintCairoStream::Write(const unsigned char* bytes, std::size_t count) noexcept {
    if (_IsGood) {
        try {
            _Out.write(reinterpret_cast<const char*>(bytes), static_cast<std::streamsize>(count));
            _IsGood = _Out.good();
        } catch (...) {
            _IsGood = false;
        }
    }
    return _IsGood;
}

bool ZAMPrintCairoStream::Flush() noexcept {
    if (_IsGood) {
        try {
            _Out.flush();
            _IsGood = _Out.good();
        } catch (...) {
            _IsGood = false;
        }
    }
    return _IsGood;
}
