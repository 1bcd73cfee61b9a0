// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathAffine2D.h"
#include "prepress/style/ZAMPrepressLeafPaint.h"

#include <cstdint>
#include <string_view>
#include <vector>

/// Computes the styles of a tree from the root down and leaves them on the elements that paint.
class ZAMPrepressFlattening {
public:
    explicit ZAMPrepressFlattening(ZAMPrepressTree& tree);

    void Flatten();

private:
    using Elements = std::vector<ZAMPrepressElement*>;

    enum class Role : std::uint8_t {
        Other,      ///< containers, and what does not paint
        Leaf,       ///< shapes and images
        Text,       ///< texts and their parts
        Definition, ///< serves others wherever it stands, and paints only there
        Stop,       ///< of a gradient
    };
    // What an element hands down besides its style.
    struct Scope {
        ZAMPrepressPaintScope paint;
        ZAMMathAffine2D map;                  ///< to the units of the drawing
        std::string_view decoration = "none"; ///< the lines of the text around
        bool isInText = false;
        bool isHidden = false; ///< not displayed: only what others may refer to counts
    };

    [[nodiscard]] static Role GetRole(const ZAMPrepressElement& element, const Scope& scope);
    /// What stays of the element is added to `kept`.
    void Visit(ZAMPrepressElement& element, const ZAMPrepressComputedStyle& parent, const Scope& outer, Elements& kept);
    void VisitChildren(ZAMPrepressElement& element, const ZAMPrepressComputedStyle& style, const Scope& scope);
    [[nodiscard]] Scope MakeScope(const ZAMPrepressElement& element, Role role, const ZAMPrepressComputedStyle& style,
                                  const Scope& outer);
    void Write(ZAMPrepressElement& element, Role role, const ZAMPrepressComputedStyle& style, const Scope& scope);
    void WriteText(ZAMPrepressElement& element, const ZAMPrepressComputedStyle& style, Scope scope);
    void Keep(ZAMPrepressElement& element, Role role, const ZAMPrepressComputedStyle& style, const Scope& scope,
              Elements& kept);
    void KeepHidden(ZAMPrepressElement& element, Role role, bool isOutermost, const Scope& scope, Elements& kept);
    void KeepPath(ZAMPrepressElement& element, const Scope& scope, Elements& kept);

    ZAMPrepressTree& _Tree;
    ZAMPrepressComputer _Computer;
    ZAMPrepressLeafPaint _Paint;
    bool _HasVisibleText = false; // the text that is visited, or was last
};
