// SPDX-License-Identifier: MIT
#include "prepress/text/ZAMPrepressTextContent.h"
#include "tests/prepress/Documents.h"

#include <gtest/gtest.h>

namespace {

// The pieces of a text, in brackets.
std::string Pieces(const std::string& document) {
    ZAMPrepressTree tree(ParseDocument(document));
    const ZAMPrepressTextContent content(tree.GetRoot(), false);
    std::string text;
    std::size_t next = 0;
    for (const ZAMPrepressTextPiece& piece : content.GetPieces()) {
        EXPECT_EQ(piece.firstCharacter, next) << document;
        next = piece.endCharacter;
        text.append("[").append(content.GetText(piece.firstCharacter, piece.endCharacter)).append("]");
    }
    EXPECT_EQ(next, content.GetSize()) << document;
    for (const ZAMPrepressTextSpan& span : content.GetSpans()) {
        EXPECT_LE(span.firstCharacter, span.endCharacter) << document;
        EXPECT_LE(span.endCharacter, content.GetSize()) << document;
    }
    return text;
}

TEST(TextContent, WhiteSpace) {
    const char* const rows[][2] = {
        {"<text>a</text>", "[a]"},
        {"<text/>", ""},
        {"<text> \n\t </text>", ""},
        {"<text>  a   b  </text>", "[a b]"},
        {"<text>a\n\tb\r\n c</text>", "[a b c]"},
        {"<text>a <tspan> b </tspan> c</text>", "[a ][b ][c]"},
        {"<text>a<tspan> b</tspan> </text>", "[a][ b]"},
        {"<text> <tspan> </tspan> </text>", ""},
        {"<text>a <tspan/> </text>", "[a]"}, // the last blank goes wherever it stands
        {"<text>a <tspan> </tspan></text>", "[a]"},
        {"<text xml:space='preserve'> a  b\n</text>", "[ a  b ]"},
        {"<text>a <tspan xml:space='preserve'>  b  </tspan>  c</text>", "[a ][  b  ][ c]"},
        {"<text xml:space='preserve'> <tspan xml:space='default'>  b  </tspan> </text>", "[ ][ b ][ ]"},
        {"<text white-space='pre'> a\t</text>", "[ a ]"},
        {"<text xml:space='preserve' white-space='normal'> a </text>", "[a]"},
        {"<text>\xC3\xA4 \xE2\x82\xAC</text>", "[\xC3\xA4 \xE2\x82\xAC]"},
        {"<text>&#160; a</text>", "[\xC2\xA0 a]"}, // no white space
        {"<text>a<title>t</title><desc>d</desc><g>g</g>b<a>c<tspan>d</tspan></a></text>", "[a][b][c][d]"},
    };
    for (const auto& [document, expected] : rows) {
        EXPECT_EQ(Pieces(document), expected) << document;
    }
}

} // namespace
