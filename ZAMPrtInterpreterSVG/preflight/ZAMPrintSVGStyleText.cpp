// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGStyleText.h"

#include "framework/base/ZAMTextCompare.h"

#include <algorithm>

namespace ZAMPrintSVGStyleText {

namespace {

constexpr std::string_view kBlanks = " \t\r\n\f";

// Behind the string that begins at `begin`; a line break ends it, too.
std::size_t SkipString(std::string_view text, std::size_t begin) {
    std::size_t at = begin + 1;
    while (at < text.size() && text[at] != text[begin] && text[at] != '\n') {
        at += text[at] == '\\' ? 2U : 1U;
    }
    return std::min(at + 1, text.size());
}

// The first of the characters outside of strings, brackets and, where they are not sought, braces; else the end.
std::size_t FindOutside(std::string_view text, std::string_view sought) {
    std::size_t depth = 0;
    for (std::size_t at = 0; at < text.size();) {
        const char c = text[at];
        if (c == '"' || c == '\'') {
            at = SkipString(text, at);
            continue;
        }
        if (depth == 0 && sought.find(c) != std::string_view::npos) {
            return at;
        }
        if (c == '(' || c == '[' || c == '{') {
            ++depth;
        } else if ((c == ')' || c == ']' || c == '}') && depth > 0) {
            --depth;
        }
        ++at;
    }
    return text.size();
}

std::string_view Take(std::string_view& text, std::string_view sought) {
    const std::size_t length = FindOutside(text, sought);
    const std::string_view taken = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    return taken;
}

std::string_view NameOf(std::string_view rule) {
    return rule.substr(0, std::min(rule.find_first_of(" \t\r\n\f\"'("), rule.size()));
}

bool HoldsRules(std::string_view name) {
    return ZAMTextMatches(name, "@media") || ZAMTextMatches(name, "@supports") || ZAMTextMatches(name, "@layer");
}

} // namespace

std::string_view Trimmed(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

void ForEachDeclaration(std::string_view text, const std::function<void(std::string_view, std::string_view)>& visit) {
    while (!text.empty()) {
        const std::string_view declaration = Take(text, ";");
        const std::size_t colon = declaration.find(':');
        if (colon == std::string_view::npos) {
            continue;
        }
        std::string_view value = declaration.substr(colon + 1);
        const std::size_t mark = value.rfind('!');
        if (mark != std::string_view::npos && ZAMTextMatches(Trimmed(value.substr(mark + 1)), "important")) {
            value = value.substr(0, mark);
        }
        visit(Trimmed(declaration.substr(0, colon)), Trimmed(value));
    }
}

void ForEachRule(std::string_view sheet, const SheetVisitor& visitor) {
    while (!(sheet = Trimmed(sheet)).empty()) {
        const std::size_t length = FindOutside(sheet, ";{}");
        const std::string_view prelude = Trimmed(sheet.substr(0, length));
        const char end = length < sheet.size() ? sheet[length] : ';';
        sheet.remove_prefix(std::min(length + 1, sheet.size()));
        const std::string_view name = NameOf(prelude);
        if (end == '}' || (end == '{' && HoldsRules(name))) {
            continue; // the rules inside come next, and the brace that ends them by itself
        }
        const std::string_view block = end == '{' ? Take(sheet, "}") : std::string_view();
        if (name.starts_with('@')) {
            visitor.atRule(name, Trimmed(prelude.substr(name.size())));
        } else if (end == '{') {
            visitor.declarations(block);
        }
    }
}

// The size is a number with a unit; weights have none.
std::string_view FamiliesOfFont(std::string_view value) {
    constexpr std::string_view kDigits = "0123456789.";
    while (!value.empty()) {
        const std::size_t length = std::min(value.find_first_of(kBlanks), value.size());
        const std::string_view word = value.substr(0, length);
        value = Trimmed(value.substr(length));
        if (!word.empty() && kDigits.find(word.front()) != std::string_view::npos &&
            word.find_first_not_of(kDigits) != std::string_view::npos) {
            return value;
        }
    }
    return {};
}

std::string WithoutComments(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        if (text.starts_with("/*")) {
            text.remove_prefix(std::min(text.find("*/", 2), text.size() - 2) + 2);
            result += ' ';
            continue;
        }
        const bool isString = text.front() == '"' || text.front() == '\'';
        const std::size_t length = isString ? SkipString(text, 0) : 1;
        result += text.substr(0, length);
        text.remove_prefix(length);
    }
    return result;
}

} // namespace ZAMPrintSVGStyleText
