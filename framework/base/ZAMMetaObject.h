// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

/// What a reference-counted class says about itself. Meta objects are constants; nothing registers or changes them.
struct ZAMMetaObject {
    std::string_view className;
    int classType;
    const ZAMMetaObject* base; ///< null for the root of a hierarchy
    std::string_view interfaceName;
    std::string_view component;
    std::size_t size; ///< of an object, in bytes

    /// True when `name` is this class or one of its bases; letter case counts.
    [[nodiscard]] constexpr bool IsAKindOf(std::string_view name) const {
        for (const ZAMMetaObject* meta = this; meta != nullptr; meta = meta->base) {
            if (meta->className == name) {
                return true;
            }
        }
        return false;
    }
};
