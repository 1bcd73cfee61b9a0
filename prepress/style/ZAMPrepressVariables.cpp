// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressVariables.h"

#include "framework/base/ZAMLimits.h"
#include "prepress/style/ZAMPrepressCssEscapes.h"
#include "prepress/style/ZAMPrepressCssTokenizer.h"
#include "prepress/style/ZAMPrepressProperties.h"

namespace {

// Variables that refer to empty ones many times over would never end, within any depth.
constexpr int kMostReferences = 100;
constexpr std::string_view kReference = "var(";

} // namespace

void ZAMPrepressVariables::Push(const Definitions& definitions) {
    for (const auto& [name, value] : definitions) {
        _Values[name].push_back(value);
    }
}

void ZAMPrepressVariables::Pop(const Definitions& definitions) {
    for (const auto& [name, value] : definitions) {
        _Values[name].pop_back();
    }
}

std::optional<std::string> ZAMPrepressVariables::Substitute(std::string_view value) const {
    if (value.size() > kZAMPrepressLongestValue) {
        return std::nullopt; // as any other value of that length: its brackets would be looked through at each level
    }
    Substitution substitution{{}, kMostReferences};
    return Append(value, 0, substitution) ? std::optional(std::move(substitution.text)) : std::nullopt;
}

bool ZAMPrepressVariables::Append(std::string_view value, int depth, Substitution& substitution) const {
    for (;;) {
        const std::string_view plain = value.substr(0, value.find(kReference));
        substitution.text.append(plain);
        if (depth > ZAMLimits::kVariableDepth || substitution.text.size() > kZAMPrepressLongestValue) {
            return false;
        }
        if (plain.size() == value.size()) {
            return true;
        }
        if (--substitution.referencesLeft < 0) {
            return false;
        }
        value.remove_prefix(plain.size() + kReference.size());
        std::list<std::string> texts;
        ZAMPrepressCssTokenizer tokens(value, texts);
        const std::string_view arguments = tokens.TakeBlock(')');
        if (!AppendReference(arguments, depth + 1, substitution)) {
            return false;
        }
        value.remove_prefix(std::min(value.size(), arguments.size() + 1));
    }
}

// A name, then perhaps a comma and what to take when it has no value.
bool ZAMPrepressVariables::AppendReference(std::string_view arguments, int depth, Substitution& substitution) const {
    const std::size_t comma = arguments.find(',');
    const auto found = _Values.find(ZAMPrepressCss::Trim(arguments.substr(0, comma)));
    if (found != _Values.end() && !found->second.empty()) {
        return Append(found->second.back(), depth, substitution);
    }
    return comma != std::string_view::npos &&
           Append(ZAMPrepressCss::Trim(arguments.substr(comma + 1)), depth, substitution);
}
