// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMNumberReading.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGTokenCursor.h"

#include <string_view>

/// Calls `take` with each number of a list separated by blanks or commas. Numbers have no units; a token that starts
/// with none is dropped.
template <class Take> void ZAMPrintSVGForEachNumber(std::string_view text, Take take) {
    for (ZAMPrintSVGTokenCursor<ZAMPrintSVGMinus::IsPart> cursor(text); !cursor.AtEnd();) {
        const auto token = cursor.Next();
        double value = token.number;
        if (token.isPlain || ZAMReadDouble(token.text, value) == 1) {
            take(value);
        }
    }
}
