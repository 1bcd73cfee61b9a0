// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressColour.h"

#include "prepress/geometry/ZAMPrepressNumberText.h"
#include "prepress/style/ZAMPrepressColourNames.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>
#include <vector>

namespace {

using Colour = ZAMPrepressColour;
using Token = ZAMPrepressCssToken;
using Type = ZAMPrepressCssTokenType;

std::uint8_t ToByte(double value) {
    return static_cast<std::uint8_t>(std::lround(std::clamp(value, 0.0, 255.0)));
}

Colour FromNumber(std::uint32_t number) {
    return {static_cast<std::uint8_t>(number >> 16U), static_cast<std::uint8_t>(number >> 8U),
            static_cast<std::uint8_t>(number)};
}

// Of three, four, six or eight digits; those of the short forms count twice.
std::optional<Colour> ReadHex(std::string_view digits) {
    std::string full;
    for (const char digit : digits.substr(0, 8)) {
        full.append(digits.size() < 6 ? 2 : 1, digit);
    }
    std::uint32_t number = 0;
    const auto result = std::from_chars(full.data(), full.data() + full.size(), number, 16);
    const bool isComplete = digits.size() == 3 || digits.size() == 4 || digits.size() == 6 || digits.size() == 8;
    if (!isComplete || result.ptr != full.data() + full.size()) {
        return std::nullopt;
    }
    if (full.size() == 6) {
        return FromNumber(number);
    }
    Colour colour = FromNumber(number >> 8U);
    colour.alpha = (number & 0xFFU) / 255.0;
    return colour;
}

// The values of a function up to its closing parenthesis, with commas, a slash or blanks between them.
std::vector<Token> ReadArguments(ZAMPrepressCssTokenizer& tokens) {
    constexpr std::size_t kMost = 5; // one more than any function takes
    std::vector<Token> values;
    while (values.size() < kMost && tokens.Peek().type != Type::End) {
        const Token token = tokens.Next();
        if (token.Is(')')) {
            return values;
        }
        if (token.type != Type::Blank && !token.Is(',') && !token.Is('/')) {
            values.push_back(token);
        }
    }
    tokens.TakeBlock(')');
    return values;
}

bool IsNumeric(const Token& token) {
    return token.type == Type::Number || token.type == Type::Percentage;
}

double ReadAlpha(const std::vector<Token>& values) {
    if (values.size() < 4) {
        return 1.0;
    }
    return std::clamp(values[3].type == Type::Percentage ? values[3].number / 100.0 : values[3].number, 0.0, 1.0);
}

std::optional<Colour> ReadRgb(const std::vector<Token>& values) {
    const auto isSame = [&](const Token& token) { return token.type == values.front().type; };
    if (!std::ranges::all_of(values, IsNumeric) || !std::all_of(values.begin(), values.begin() + 3, isSame)) {
        return std::nullopt;
    }
    const double whole = values.front().type == Type::Percentage ? 100.0 : 255.0;
    const auto getComponent = [&](std::size_t index) { return ToByte(values[index].number * 255.0 / whole); };
    return Colour{getComponent(0), getComponent(1), getComponent(2), ReadAlpha(values)};
}

// In turns; nothing for what is no angle.
std::optional<double> ReadHue(const Token& token) {
    struct Angle {
        std::string_view unit;
        double turn;
    };
    static constexpr Angle kAngles[] = {
        {"deg", 360.0}, {"rad", 2.0 * std::numbers::pi}, {"grad", 400.0}, {"turn", 1.0}};
    if (token.type == Type::Number) {
        return token.number / 360.0;
    }
    for (const Angle& angle : kAngles) {
        if (token.type == Type::Dimension && ZAMTextMatches(token.text, angle.unit)) {
            return token.number / angle.turn;
        }
    }
    return std::nullopt;
}

std::optional<Colour> ReadHsl(const std::vector<Token>& values) {
    const std::optional<double> hue = ReadHue(values.front());
    if (!hue || !std::all_of(values.begin() + 1, values.end(), IsNumeric)) {
        return std::nullopt;
    }
    const double saturation = std::clamp(values[1].number / 100.0, 0.0, 1.0);
    const double lightness = std::clamp(values[2].number / 100.0, 0.0, 1.0);
    const double reach = saturation * std::min(lightness, 1.0 - lightness);
    // CSS Color 4, 7.1: a component for each third of the circle.
    const auto getComponent = [&](double start) {
        const double k = std::fmod(std::fmod(start + *hue * 12.0, 12.0) + 12.0, 12.0);
        return ToByte(255.0 * (lightness - reach * std::clamp(std::min(k - 3.0, 9.0 - k), -1.0, 1.0)));
    };
    return Colour{getComponent(0.0), getComponent(8.0), getComponent(4.0), ReadAlpha(values)};
}

std::optional<Colour> ReadFunction(const Token& function, ZAMPrepressCssTokenizer& tokens) {
    const std::vector<Token> values = ReadArguments(tokens);
    if (values.size() < 3 || values.size() > 4) {
        return std::nullopt;
    }
    if (function.IsFunction("rgb") || function.IsFunction("rgba")) {
        return ReadRgb(values);
    }
    return function.IsFunction("hsl") || function.IsFunction("hsla") ? ReadHsl(values) : std::nullopt;
}

std::optional<Colour> ReadName(std::string_view name) {
    if (ZAMTextMatches(name, "transparent")) {
        return Colour{0, 0, 0, 0.0};
    }
    const auto number = ZAMPrepressFindColour(name);
    return number ? std::optional(FromNumber(*number)) : std::nullopt;
}

} // namespace

std::string ZAMPrepressColour::ToHex() const {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text = "#";
    for (const std::uint8_t component : {red, green, blue}) {
        text += kDigits[component >> 4U];
        text += kDigits[component & 0xFU];
    }
    return text;
}

std::string ZAMPrepressColour::ToText() const {
    if (alpha == 1.0) {
        return ToHex();
    }
    std::string text = "rgba(";
    for (const std::uint8_t component : {red, green, blue}) {
        text.append(std::to_string(component)).append(",");
    }
    return text.append(ZAMPrepressNumberText(alpha)).append(")");
}

std::optional<Colour> ZAMPrepressColour::Parse(ZAMPrepressCssTokenizer& tokens) {
    tokens.SkipBlanks();
    const Token token = tokens.Next();
    switch (token.type) {
    case Type::Hash:
        return ReadHex(token.text);
    case Type::Function:
        return ReadFunction(token, tokens);
    case Type::Ident:
        return ReadName(token.text);
    default:
        return std::nullopt;
    }
}
