// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory_resource>
#include <optional>
#include <string_view>
#include <vector>

/// An element of a document that is being rewritten, or a run of character data among its siblings. Texts are views:
/// into the source document, into literals, or into what the tree keeps (ZAMPrepressTree::Keep).
struct ZAMPrepressElement {
    struct Attribute {
        std::string_view name;
        std::string_view value;
    };

    ZAMPrepressElement() = default;
    /// The lists live in `memory`, which outlives the element.
    explicit ZAMPrepressElement(std::pmr::memory_resource* memory) : attributes(memory), children(memory) {}

    std::string_view name; ///< empty for a run of character data
    std::string_view text; ///< of a run of character data
    std::pmr::vector<Attribute> attributes;
    std::pmr::vector<ZAMPrepressElement*> children; ///< in document order; the tree owns them
    ZAMPrepressElement* parent = nullptr;
    std::uint32_t line = 0; ///< where the source has it, 0 when nowhere
    std::uint32_t column = 0;

    [[nodiscard]] bool IsText() const { return name.empty(); }
    [[nodiscard]] bool Is(std::string_view elementName) const { return name == elementName; }

    /// The attribute's value, or an empty text; a missing attribute and an empty one are the same to most readers.
    [[nodiscard]] std::string_view Get(std::string_view attribute) const {
        return Find(attribute).value_or(std::string_view());
    }
    [[nodiscard]] bool Has(std::string_view attribute) const { return Find(attribute).has_value(); }
    /// Nothing when the element has no such attribute.
    [[nodiscard]] std::optional<std::string_view> Find(std::string_view attribute) const {
        for (const Attribute& each : attributes) {
            if (each.name == attribute) {
                return each.value;
            }
        }
        return std::nullopt;
    }
    /// Sets the attribute in its place, or appends it.
    void Set(std::string_view attribute, std::string_view value);
    void Remove(std::string_view attribute);
};
