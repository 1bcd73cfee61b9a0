// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <ostream>

/// The way to the output for libraries that write through a C callback: it throws nothing and remembers the first
/// failure, after which nothing more is written.
class ZAMPrintCairoStream {
public:
    explicit ZAMPrintCairoStream(std::ostream& out) : _Out(out) {}

    /// False when these or earlier bytes could not be written.
    bool Write(const unsigned char* bytes, std::size_t count) noexcept;
    bool Flush() noexcept;
    /// Drops all further bytes, as after a failure: a document that is given up must not look complete.
    void Abandon() noexcept { _IsGood = false; }
    [[nodiscard]] bool IsGood() const noexcept { return _IsGood; }

private:
    std::ostream& _Out;
    bool _IsGood = true;
};
