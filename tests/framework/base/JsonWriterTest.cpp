// SPDX-License-Identifier: MIT
#include "framework/base/ZAMJsonWriter.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <locale>
#include <nlohmann/json.hpp>
#include <random>
#include <sstream>

namespace {

// Thousands apart, a comma for the point: what a host may have set for its own texts.
class CommaPunctuation : public std::numpunct<char> {
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

template <class Write> std::string Written(Write write) {
    std::ostringstream out;
    out.imbue(std::locale(std::locale::classic(), new CommaPunctuation));
    ZAMJsonWriter json(out);
    write(json);
    return out.str();
}

} // namespace

TEST(JsonWriterTest, Layouts) {
    const std::string text = Written([](ZAMJsonWriter& json) {
        json.BeginObject();
        json.Member("name", "x");
        json.Member("count", 1234567);
        json.Member("point", {1.0, -2.5});
        json.Key("lines");
        json.BeginArray(ZAMJsonWriter::Layout::Lines);
        json.BeginObject();
        json.Key("inner");
        json.BeginArray(ZAMJsonWriter::Layout::Lines);
        json.Null();
        json.EndArray();
        json.EndObject();
        json.Integer(2);
        json.EndArray();
        json.Key("empty");
        json.BeginArray(ZAMJsonWriter::Layout::Lines);
        json.EndArray();
        json.EndObject();
    });
    EXPECT_EQ(text, "{\"name\": \"x\", \"count\": 1234567, \"point\": [1, -2.5], \"lines\": [\n"
                    "  {\"inner\": [\n    null\n  ]},\n  2\n], \"empty\": []}\n");
    EXPECT_EQ(nlohmann::json::parse(text)["lines"][1], 2);
}

TEST(JsonWriterTest, TextsReadBack) {
    std::string controls;
    for (char c = 0; c < 0x20; ++c) {
        controls += c;
    }
    for (const std::string& row : {std::string(), std::string("a\"b\\c/d\n\t"), controls,
                                   std::string("\x7F\xC3\xA9\xE2\x80\xA8\xF0\x9F\x98\x80")}) {
        const std::string text = Written([&row](ZAMJsonWriter& json) {
            json.BeginObject();
            json.Member(row, row);
            json.EndObject();
        });
        EXPECT_EQ(nlohmann::json::parse(text), nlohmann::json({{row, row}}));
    }
}

TEST(JsonWriterTest, NumbersReadBackExactly) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    const struct {
        double number;
        const char* text;
    } rows[] = {{0.0, "0"},
                {-0.0, "-0"},
                {0.1, "0.1"},
                {1e300, "1e+300"},
                {-1234567.0, "-1234567"},
                {1e-7, "1e-07"},
                {5e-324, "5e-324"},
                {kInfinity, "\"inf\""},
                {-kInfinity, "\"-inf\""},
                {std::nan(""), "\"nan\""}};
    for (const auto& row : rows) {
        EXPECT_EQ(Written([&row](ZAMJsonWriter& json) { json.Number(row.number); }), row.text);
    }

    std::mt19937_64 random(9);
    for (int i = 0; i < 10'000; ++i) {
        const auto number = std::bit_cast<double>(random());
        if (std::isfinite(number)) {
            const std::string text = Written([number](ZAMJsonWriter& json) { json.Number(number); });
            ASSERT_EQ(std::bit_cast<std::uint64_t>(nlohmann::json::parse(text).get<double>()),
                      std::bit_cast<std::uint64_t>(number))
                << text;
        }
    }
}
