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

protected:
    using Cursor = ZAMPrintSVGTokenCursor<minus>;
    using Token = typename Cursor::Token;

    // A token as its text is read, with the number at hand that nearly every token is.
    int ReadX(const Token& token, double& value) const {
        return TakePlain(token, value) ? 1 : GetXCoordinate(token.text, value);
    }
    int ReadY(const Token& token, double& value) const {
        if (!TakePlain(token, value)) {
            return GetYCoordinate(token.text, value);
        }
        value = _FlipY ? _ImageHeight - value : value;
        return 1;
    }
    int ReadVertLength(const Token& token, double& value) const {
        return TakePlain(token, value) ? 1 : GetVertLength(token.text, value);
    }
    static int ReadNumber(const Token& token, double& value) {
        return TakePlain(token, value) ? 1 : GetNumber(token.text, value);
    }

private:
    static bool TakePlain(const Token& token, double& value) {
        if (token.isPlain) {
            value = token.number;
        }
        return token.isPlain;
    }

    void AppendX(const Token& token, ZAMRawColldouble& list) const {
        if (double value = 0.0; ReadX(token, value) > 0) {
            list.Append(value);
        }
    }
    void AppendY(const Token& token, ZAMRawColldouble& list) const {
        if (double value = 0.0; ReadY(token, value) > 0) {
            list.Append(value);
        }
    }
};
