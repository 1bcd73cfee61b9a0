// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// The variables ("--name") in force at an element (CSS Custom Properties 1). Names and values are views.
class ZAMPrepressVariables {
public:
    using Definitions = std::vector<std::pair<std::string_view, std::string_view>>;

    /// For the children of an element; of two definitions of a name the last one counts.
    void Push(const Definitions& definitions);
    /// Takes back what a Push with the same definitions did.
    void Pop(const Definitions& definitions);

    /// The value with that of the variables instead of references to them. Nothing when one has no value and no
    /// fallback, refers to itself, or comes to too many of them or too long a text.
    [[nodiscard]] std::optional<std::string> Substitute(std::string_view value) const;

private:
    struct Substitution {
        std::string text;
        int referencesLeft;
    };

    bool Append(std::string_view value, int depth, Substitution& substitution) const;
    bool AppendReference(std::string_view arguments, int depth, Substitution& substitution) const;

    std::unordered_map<std::string_view, std::vector<std::string_view>> _Values; // the innermost one last
};
