// SPDX-License-Identifier: MIT
#pragma once

#include "generators/cairo/ZAMPrintCairoStream.h"

#include <string>
#include <string_view>
#include <unordered_set>

/// Blanks what cairo 1.16 writes too often into a PDF on its way to the stream: the resources of a page name a picture
/// each time that it is drawn, and readers take a dictionary with a repeated key for damage. As many blanks in its
/// place keep the file's offsets right. The alternative, a form of its own around each picture, costs 440 bytes and 25
/// microseconds a time, this 13 bytes and 3.
///
/// Bytes are held back only where a dictionary begins or goes on, so at the end the rest must be flushed.
class ZAMPrintCairoNameFilter {
public:
    explicit ZAMPrintCairoNameFilter(ZAMPrintCairoStream& stream) : _Stream(stream) {}

    /// False when these or earlier bytes could not be written.
    bool Write(std::string_view bytes);
    bool Flush();

private:
    [[nodiscard]] bool ReadOutside();
    [[nodiscard]] bool ReadEntry();
    void Pass(std::size_t count);

    ZAMPrintCairoStream& _Stream;
    std::string _Held;
    std::size_t _Passed = 0; ///< of what is held
    bool _IsInside = false;  ///< of a dictionary of pictures
    std::unordered_set<std::string> _Names;
};
