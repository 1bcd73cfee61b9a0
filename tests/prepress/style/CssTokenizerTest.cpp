// SPDX-License-Identifier: MIT
#include "prepress/geometry/ZAMPrepressNumberText.h"
#include "prepress/style/ZAMPrepressCssTokenizer.h"

#include <gtest/gtest.h>

namespace {

using Type = ZAMPrepressCssTokenType;

// One letter for the type and the text of each token.
std::string Dump(std::string_view source) {
    constexpr std::string_view kLetters = "$_if@#sSuUn%dh";
    std::list<std::string> texts;
    ZAMPrepressCssTokenizer tokens(source, texts);
    std::string dump;
    while (tokens.Peek().type != Type::End) {
        const ZAMPrepressCssToken token = tokens.Next();
        dump.append(dump.empty() ? "" : " ");
        if (token.type == Type::Delim) {
            dump.append(token.text);
            continue;
        }
        dump += kLetters[static_cast<std::size_t>(token.type)];
        if (token.type >= Type::Number && token.type <= Type::Dimension) {
            dump.append(ZAMPrepressNumberText(token.number));
        }
        dump.append(token.text);
    }
    return dump;
}

TEST(PrepressCssTokenizer, Tokens) {
    const char* const rows[][2] = {
        {"", ""},
        {"a -b _c --d e1-2", "ia _ i-b _ i_c _ i--d _ ie1-2"},
        {"/* a */b/**/c/* d", "ib ic"},
        {" \t\n/**/ ", "_ _"},
        {"1 -2 +.5 3.25 1e3 1e-2 2e", "n1 _ n-2 _ n0.5 _ n3.25 _ n1000 _ n0.01 _ d2e"},
        {"1em 2% 3e1x 1.e", "d1em _ %2 _ d30x _ n1 . ie"},
        {"1e999 -1e999 1e-999", "n1e+38 _ n-1e+38 _ n0"},
        {"+ - . +a -. 1-2", "+ _ - _ . _ + ia _ - . _ n1 n-2"},
        {"#fff #0a #- # #\\61", "#fff _ #0a _ #- _ # _ #a"},
        {"'a\"b' \"c'd\" 'open", "sa\"b _ sc'd _ sopen"},
        {"'a\nb' 'x\\\ny'", "Sa _ ib s  ix \\ _ iy s"},
        {"rgb(1,2)", "frgb n1 , n2 )"},
        {"url(a.b) url( #c ) URL('d') url(e f) url(g", "ua.b _ u#c _ fURL sd ) _ Ue f _ ug"},
        {"@media @ -- <!-- -->", "@media _ @ _ i-- _ h _ h"},
        {"\\66oo \\000066 oo f\\6f o a\\.b", "ifoo _ ifoo _ ifoo _ ia.b"},
        {"'\\201C' '\\0' '\\110000' '\\1F600'", "s\xE2\x80\x9C _ s\xEF\xBF\xBD _ s\xEF\xBF\xBD _ s\xF0\x9F\x98\x80"},
        {"\xC3\xA4\xC3\xB6 a\\", "i\xC3\xA4\xC3\xB6 _ ia \\"},
        {"a{b:c;}[(!~", "ia { ib : ic ; } [ ( ! ~"},
    };
    for (const auto& [source, dump] : rows) {
        EXPECT_EQ(Dump(source), dump) << source;
    }
}

TEST(PrepressCssTokenizer, BlocksEndWhereTheirOwnBracketIs) {
    const char* const rows[][2] = {
        {"(a)b", "a"},     {"(a(b)c)d", "a(b)c"}, {"(a[)]b)c", "a[)]b"}, {"({)})", "{)}"},
        {"(a]b)c", "a]b"}, {"(f(a", "f(a"},       {"(')')", "')'"},
    };
    for (const auto& [source, inside] : rows) {
        std::list<std::string> texts;
        ZAMPrepressCssTokenizer tokens(source, texts);
        EXPECT_TRUE(tokens.Eat('('));
        EXPECT_EQ(tokens.TakeBlock(')'), inside) << source;
    }
}

} // namespace
