// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/document/ZAMPrepressTree.h"
#include "prepress/style/ZAMPrepressProperties.h"

#include <map>
#include <optional>
#include <tuple>

/// Computes the values of properties and keeps them as long as the tree. Long ones, which sheets give to many elements
/// by the same text, are computed but once.
class ZAMPrepressComputer {
public:
    explicit ZAMPrepressComputer(ZAMPrepressTree& tree)
        : _Tree(tree), _Viewport(ZAMPrepressViewportSize::OfRoot(tree.GetRoot())) {}

    [[nodiscard]] const ZAMPrepressViewportSize& GetViewport() const { return _Viewport; }
    /// Nothing when the text, which must live as long as this, is no value of the property.
    [[nodiscard]] std::optional<std::string_view> Compute(const ZAMPrepressPropertyRow& row, std::string_view specified,
                                                          const ZAMPrepressValueBases& bases);

private:
    // The property, where the text is, and what its value is relative to.
    using Key = std::tuple<ZAMPrepressProperty, const char*, std::size_t, double, int>;

    [[nodiscard]] std::optional<std::string_view>
    ComputeAnew(const ZAMPrepressPropertyRow& row, std::string_view specified, const ZAMPrepressValueBases& bases);

    ZAMPrepressTree& _Tree;
    ZAMPrepressViewportSize _Viewport;
    std::map<Key, std::optional<std::string_view>> _Long;
};
