// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/style/ZAMPrepressRules.h"
#include "prepress/style/ZAMPrepressVariables.h"

#include <array>
#include <optional>
#include <string_view>

/// The declarations for one element, of which for each property the strongest wins (CSS Cascade 3, section 6).
class ZAMPrepressCascade {
public:
    /// Of a rule that holds for the element.
    void Offer(const ZAMPrepressRules::Declared& declared, std::uint32_t specificity);
    /// Of the element's style attribute; of several those that come later are stronger.
    void OfferInline(const ZAMPrepressDeclaration& declaration);

    /// Nothing when only a presentation attribute, or none at all, says what the property is.
    [[nodiscard]] std::optional<std::string_view> Get(ZAMPrepressProperty property) const;
    /// The variables, the strongest definition of each one last.
    [[nodiscard]] ZAMPrepressVariables::Definitions GetVariables();

private:
    struct Winner {
        std::uint64_t strength = 0; // 0 when there is none
        std::string_view value;
    };
    struct Variable {
        std::uint64_t strength;
        std::string_view name;
        std::string_view value;
    };

    void Offer(const ZAMPrepressDeclaration& declaration, std::uint64_t strength);

    std::array<Winner, kZAMPrepressProperties> _Winners;
    std::vector<Variable> _Variables;
};
