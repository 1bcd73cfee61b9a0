// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <zlib.h>

/// Packs bytes as the filter FlateDecode of PDF unpacks them.
class ZAMPrintCairoDeflater {
public:
    /// For so many bytes, or more: with few of them zlib gets no more memory than they need, which takes it longer to
    /// clear than to use.
    explicit ZAMPrintCairoDeflater(std::size_t expected);

    void Add(std::string_view bytes) { Run(bytes, Z_NO_FLUSH); }
    /// All that was added, packed; nothing can be added any more.
    [[nodiscard]] std::string Finish();

private:
    void Run(std::string_view bytes, int flush);

    // It is pointed to by what zlib keeps of it, so it stays where it is.
    std::unique_ptr<z_stream, void (*)(z_stream*)> _Stream;
    std::string _Packed;
};
