// SPDX-License-Identifier: MIT
#pragma once

#include "generators/cairo/ZAMPrintCairoDeflater.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The text of a PDF content stream as it is written: numbers and operators, packed at once.
class ZAMPrintCairoPlainText {
public:
    /// A number of units of 10 to the power of minus `decimals`, without a needless digit.
    void AddFixed(std::int64_t units, int decimals);
    /// With as many as six decimals; the magnitude is below 1e9.
    void AddNumber(double number);
    /// An operator, or an operand that is none of the numbers.
    void AddWord(std::string_view word);

    [[nodiscard]] std::string Finish();

private:
    void Separate();
    void Pack();

    std::string _Text; ///< not packed yet
    std::optional<ZAMPrintCairoDeflater> _Deflater;
};
