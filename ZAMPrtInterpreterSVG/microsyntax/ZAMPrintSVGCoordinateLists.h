// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMRawColldouble.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGLengthReader.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGTokenCursor.h"

#include <string_view>

/// Reads lists of coordinates, appending to `list`. What cannot be read is dropped without a trace, so that the values
/// behind it move up, also from x to y.
template <ZAMPrintSVGMinus minus> class ZAMPrintSVGCoordinateLists : public ZAMPrintSVGLengthReader {
public:
    using ZAMPrintSVGLengthReader::ZAMPrintSVGLengthReader;

    void GetXCoordListFromXCoordListString(std::string_view text, ZAMRawColldouble& list) const {
        for (Cursor cursor(text); !cursor.AtEnd();) {
            AppendX(cursor.Next(), list);
        }
    }

    void GetYCoordListFromYCoordListString(std::string_view text, ZAMRawColldouble& list) const {
        for (Cursor cursor(text); !cursor.AtEnd();) {
            AppendY(cursor.Next(), list);
        }
    }

    /// x and y in turn. The text's very last token is a y, wherever it stands.
    void GetPointListFromPointListString(std::string_view text, ZAMRawColldouble& list) const {
        Cursor cursor(text);
        while (!cursor.AtEnd()) {
            const auto first = cursor.Next();
            if (!first.separated) {
                AppendY(first, list);
                return;
            }
            AppendX(first, list);
            AppendY(cursor.Next(), list);
        }
    }

private:
    using Cursor = ZAMPrintSVGTokenCursor<minus>;

    using Token = typename Cursor::Token;

    void AppendX(const Token& token, ZAMRawColldouble& list) const {
        double value = token.number;
        if (token.isPlain || GetXCoordinate(token.text, value) > 0) {
            list.Append(value);
        }
    }
    void AppendY(const Token& token, ZAMRawColldouble& list) const {
        double value = 0.0;
        if (token.isPlain) {
            list.Append(_FlipY ? _ImageHeight - token.number : token.number);
        } else if (GetYCoordinate(token.text, value) > 0) {
            list.Append(value);
        }
    }
};
