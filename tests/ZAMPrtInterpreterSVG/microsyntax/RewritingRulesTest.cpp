// SPDX-License-Identifier: MIT
// The readers of paths and transforms walk over the text as it is. Their rules are those of a text that is
// really rewritten: these tests rewrite random texts so, in the plainest way, into an equivalent tidy one and compare
// the results.
#include "framework/base/ZAMNumberReading.h"
#include "framework/base/ZAMTextCompare.h"
#include "tests/support/PieceText.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGPathParser.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGPointsParser.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGTransformParser.h"

#include <gtest/gtest.h>
#include <random>
#include <set>
#include <vector>

namespace {

using Strings = std::vector<std::string>;

// Words between the bars, at most `longest` of them.
std::string RandomText(std::mt19937& random, const std::string& words, unsigned longest) {
    Strings alphabet(1);
    for (const char c : words) {
        if (c == '|') {
            alphabet.emplace_back();
        } else {
            alphabet.back() += c;
        }
    }
    std::string text;
    for (auto length = 1 + random() % longest; length > 0; --length) {
        text += alphabet[random() % alphabet.size()];
    }
    return text;
}

void ReplaceAll(std::string& text, std::string_view pattern, std::string_view replacement) {
    ZAMUnicodeString rewritten{std::string_view(text)};
    rewritten.ReplaceAll(pattern, replacement);
    text = rewritten.View();
}

void TrimLeft(std::string& text) {
    while (text.starts_with(' ')) {
        text.erase(0, 1);
    }
}

// Removes and returns what stands before the first `separator`, or everything.
std::string Cut(std::string& text, char separator) {
    const std::size_t end = text.find(separator);
    std::string part = text.substr(0, end);
    text.erase(0, end == std::string::npos ? end : end + 1);
    return part;
}

std::string Number(double value) {
    if (std::isinf(value)) {
        return value > 0 ? "1e999 " : "-1e999 ";
    }
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%.17g ", value);
    return buffer;
}

// One path command as it is read: its letter and the plain numbers of its arguments.
std::string TidyItem(const ZAMPrintSVGLengthReader& reader, const std::string& item) {
    const std::string letter = item.substr(0, item.starts_with("\u017F") ? 2 : 1);
    std::string rest = item.substr(letter.size());
    std::string tidy = letter.size() == 2 ? "S" : letter;
    const auto is = [letter](const char* upper) { return ZAMTextMatches(letter, upper); };
    const auto append = [&tidy, &reader](const std::string& token, bool isX) {
        double value = 0.0;
        if ((isX ? reader.GetXCoordinate(token, value) : reader.GetYCoordinate(token, value)) > 0) {
            tidy += Number(value);
        }
    };
    Strings tokens; // for arcs
    while (!rest.empty()) {
        TrimLeft(rest);
        if (is("H") || is("V")) {
            append(Cut(rest, ' '), is("H"));
        } else if (is("A")) {
            tokens.push_back(Cut(rest, ' '));
        } else {
            if (rest.find(' ') != std::string::npos) {
                append(Cut(rest, ' '), true);
            }
            TrimLeft(rest);
            append(Cut(rest, ' '), false);
        }
    }
    std::erase(tokens, "");
    for (std::size_t i = 0; i < tokens.size() / 7 * 7; ++i) {
        double value = 0.0;
        const std::size_t position = i % 7;
        if (position == 0 || position == 5) {
            reader.GetHorLength(tokens[i], value);
        } else if (position == 1 || position == 6) {
            reader.GetVertLength(tokens[i], value);
        } else {
            ZAMPrintSVGLengthReader::GetNumber(tokens[i], value);
        }
        tidy += Number(value);
    }
    return tidy;
}

std::string TidyPath(const ZAMPrintSVGLengthReader& reader, std::string text) {
    ReplaceAll(text, "e-", "eee");
    ReplaceAll(text, "-", " -");
    ReplaceAll(text, ",", " ");
    const std::string letters = "MmZzLlCcSsHhVvQqTtAa";
    for (const char letter : letters) {
        ReplaceAll(text, std::string(1, letter), std::string(";") + letter);
    }
    ReplaceAll(text, "eee", "e-");
    if (text.find(';') == std::string::npos) {
        return "";
    }
    std::string tidy = ";";
    while (!text.empty()) {
        if (text.starts_with(';')) {
            text.erase(0, 1);
        }
        const std::string item = text.substr(0, text.find(';'));
        text.erase(0, item.size());
        if (!item.empty() && (letters.find(item[0]) != std::string::npos || item.starts_with("\u017F"))) {
            tidy += TidyItem(reader, item);
        }
    }
    return tidy;
}

TEST(RewritingRules, Path) {
    const std::string words =
        "M|m|L|l|C|c|Z|z|S|s|H|h|V|v|Q|q|T|t|A|a|M0 0|0|1|2|3|4|5|6|7|8|9|.|-|+|e|E|e-|eee|ee|0x|,| | | | 1| 2|-3| 4 5|"
        " 1 2 3 4 5 6|;|%|p|t|c|m|i|n|in|pt|\t|\u017F";
    std::mt19937 random(2006); // NOLINT: every run tries the same texts
    std::set<std::string> results;
    for (int i = 0; i < 6000; ++i) {
        const std::string data = RandomText(random, words, 24);
        ZAMPrintSVGPathParser parser;
        parser.SetImageSize(300.0, 40.0);
        parser._FlipY = false; // so that what is read can be written again
        const auto group = ZAMNew<ZAMPrtGroupElt>();
        const auto tidyGroup = ZAMNew<ZAMPrtGroupElt>();
        const std::string tidy = TidyPath(parser, data);
        EXPECT_EQ(parser.ParsePathString(group.Get(), data), parser.ParsePathString(tidyGroup.Get(), tidy)) << data;
        const std::string result = PieceText(*group, 17);
        ASSERT_EQ(result, PieceText(*tidyGroup, 17)) << data << "\nas " << tidy;
        results.insert(result);
    }
    EXPECT_GT(results.size(), 1000U); // the texts say something
}

// Points as they are read: x and y in turn, but the very last token is a y.
std::string TidyPoints(const ZAMPrintSVGLengthReader& reader, std::string text) {
    ReplaceAll(text, ",", " ");
    std::string tidy;
    const auto append = [&](const std::string& token, bool isX) {
        double value = 0.0;
        if ((isX ? reader.GetXCoordinate(token, value) : reader.GetYCoordinate(token, value)) > 0) {
            tidy += Number(value);
        }
    };
    while (!text.empty()) {
        TrimLeft(text);
        if (text.find(' ') != std::string::npos) {
            append(Cut(text, ' '), true);
        }
        TrimLeft(text);
        append(Cut(text, ' '), false);
    }
    return tidy;
}

TEST(RewritingRules, Points) {
    const std::string words = "0|1|2|3|.|-|+|e|E|e-|0x|,| | | | 1| 2|-3| 4 5|1.25,-7.5 |12345678.9 |%|p|t|mm|inf|\t";
    std::mt19937 random(2006); // NOLINT
    std::set<std::string> results;
    for (int i = 0; i < 4000; ++i) {
        const std::string text = RandomText(random, words, 16);
        ZAMPrintSVGPointsParser parser;
        parser.SetImageSize(300.0, 40.0);
        parser._FlipY = false;
        const std::string tidy = TidyPoints(parser, text);
        const auto read = [&parser](const std::string& points) {
            const auto line = ZAMNew<ZAMPrtPolylineElt>();
            const auto group = ZAMNew<ZAMPrtGroupElt>();
            group->AddChild(line.Get());
            parser.ParsePointsString(line.Get(), points, nullptr);
            return PieceText(*group, 17);
        };
        const std::string result = read(text);
        ASSERT_EQ(result, read(tidy)) << text << "\nas " << tidy;
        results.insert(result);
    }
    EXPECT_GT(results.size(), 500U);
}

std::string TidyTransform(std::string text) {
    const char* const names[] = {"matrix", "translate", "scale", "rotate", "skewX", "skewY"};
    for (const std::string name : names) {
        ReplaceAll(text, name, ";" + name);
    }
    std::string tidy;
    while (!text.empty()) {
        std::string item;
        if (text.find(';') == std::string::npos) {
            item.swap(text);
        } else {
            Cut(text, ';');
            item = text.substr(0, text.find(';'));
            text.erase(0, item.size());
        }
        const std::size_t open = item.find('(');
        const std::size_t close = open == std::string::npos ? open : item.find(')', open);
        if (close == std::string::npos || close == open + 1) {
            continue;
        }
        std::string arguments = item.substr(open + 1, close - open - 1);
        for (const std::string_view name : names) {
            if (!ZAMTextMatches(item.substr(0, open), name)) {
                continue;
            }
            tidy += std::string(name) + "( ";
            double value = 0.0;
            if (name.starts_with("skew")) {
                ZAMReadDouble(arguments, value);
                arguments.clear();
                tidy += Number(value);
            }
            ReplaceAll(arguments, ",", " ");
            while (!arguments.empty()) {
                TrimLeft(arguments);
                if (ZAMReadDouble(Cut(arguments, ' '), value) == 1) {
                    tidy += Number(value);
                }
            }
            tidy += ")";
        }
    }
    return tidy.empty() ? " " : tidy;
}

TEST(RewritingRules, Transform) {
    const std::string words =
        "matrix(2,1 |translate(1|scale(2|rotate(30 |skewX(9)|skewY(8|scale|;|(|)|)|)|)| |,|1|2 |-3|e|-|"
        ".5| 4 5|\t|Scale(3)|skew|X|\u017Fcale(1 2)";
    std::mt19937 random(2006); // NOLINT
    std::set<std::string> results;
    for (int i = 0; i < 3000; ++i) {
        const std::string text = RandomText(random, words, 12);
        const auto read = [](const std::string& list) {
            const auto group = ZAMNew<ZAMPrtGroupElt>();
            ZAMPrintSVGTransformParser().ParseTransformString(list, group.Get());
            const ZAMMathAffine2D& m = group->GetTransformAttributes().GetMatrix();
            return NumberText({m.a, m.b, m.c, m.d, m.e, m.f}, 17);
        };
        const std::string result = read(text);
        ASSERT_EQ(result, read(TidyTransform(text))) << text << "\nas " << TidyTransform(text);
        results.insert(result);
    }
    EXPECT_GT(results.size(), 100U);
}

} // namespace
