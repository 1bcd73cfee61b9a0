// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressCascade.h"

#include <algorithm>

namespace {

// From the strongest bit: importance, the style attribute, specificity, order.
constexpr std::uint64_t kImportant = std::uint64_t{1} << 63U;
constexpr std::uint64_t kInline = std::uint64_t{1} << 62U;
constexpr unsigned kSpecificityShift = 32;

} // namespace

void ZAMPrepressCascade::Offer(const ZAMPrepressRules::Declared& declared, std::uint32_t specificity) {
    Offer(declared.declaration, (std::uint64_t{specificity} << kSpecificityShift) + declared.order);
}

void ZAMPrepressCascade::OfferInline(const ZAMPrepressDeclaration& declaration) {
    Offer(declaration, kInline);
}

void ZAMPrepressCascade::Offer(const ZAMPrepressDeclaration& declaration, std::uint64_t strength) {
    strength |= declaration.isImportant ? kImportant : 0;
    if (declaration.property == ZAMPrepressProperty::Custom) {
        _Variables.push_back({strength, declaration.name, declaration.value});
        return;
    }
    Winner& winner = _Winners[static_cast<std::size_t>(declaration.property)];
    if (strength >= winner.strength) {
        winner = {strength, declaration.value};
    }
}

std::optional<std::string_view> ZAMPrepressCascade::Get(ZAMPrepressProperty property) const {
    const Winner& winner = _Winners[static_cast<std::size_t>(property)];
    return winner.strength == 0 ? std::nullopt : std::optional(winner.value);
}

ZAMPrepressVariables::Definitions ZAMPrepressCascade::GetVariables() {
    std::ranges::stable_sort(_Variables, {}, &Variable::strength);
    ZAMPrepressVariables::Definitions definitions;
    for (const Variable& variable : _Variables) {
        definitions.emplace_back(variable.name, variable.value);
    }
    return definitions;
}
