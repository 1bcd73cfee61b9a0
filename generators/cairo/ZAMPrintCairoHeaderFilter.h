// SPDX-License-Identifier: MIT
#pragma once

#include "generators/cairo/ZAMPrintCairoStream.h"

#include <functional>
#include <string>
#include <string_view>

/// Holds back the beginning of what cairo writes until a mark has come, and lets it be changed: where cairo writes the
/// time of day, or nothing that says whose document it is.
class ZAMPrintCairoHeaderFilter {
public:
    /// Changes the text up to the end of the mark.
    using Edit = std::function<void(std::string& header)>;

    ZAMPrintCairoHeaderFilter(ZAMPrintCairoStream& stream, std::string_view mark, Edit edit)
        : _Stream(stream), _Mark(mark), _Edit(std::move(edit)) {}

    /// False when these or earlier bytes could not be written.
    bool Write(std::string_view bytes);
    /// At the end: passes on what was held back and never met the mark.
    bool Flush();

private:
    bool Pass(std::string_view bytes);

    ZAMPrintCairoStream& _Stream;
    std::string_view _Mark;
    Edit _Edit;
    std::string _Held;
    bool _IsBehind = false; ///< the mark has come
};
