// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>

/// Cuts CSS text (CSS Syntax 3) into what the preflight looks at. Quotes and brackets are heeded; what is malformed
/// ends where its block does.
namespace ZAMPrintSVGStyleText {

/// Calls `visit` with the name and the value of each declaration, without blanks around them and "!important".
void ForEachDeclaration(std::string_view text, const std::function<void(std::string_view, std::string_view)>& visit);

/// What a style sheet holds, for each rule.
struct SheetVisitor {
    std::function<void(std::string_view block)> declarations;                    ///< the inside of a rule's block
    std::function<void(std::string_view name, std::string_view prelude)> atRule; ///< "@import" and what follows it
};
/// The rules within "@media", "@supports" and "@layer" count as if they stood outside. `sheet` has no comments.
void ForEachRule(std::string_view sheet, const SheetVisitor& visitor);

/// The families of a value of the property "font", which stand behind the size; empty when there is none.
std::string_view FamiliesOfFont(std::string_view value);

/// Each comment made a blank; strings keep theirs.
std::string WithoutComments(std::string_view text);

std::string_view Trimmed(std::string_view text);

} // namespace ZAMPrintSVGStyleText
