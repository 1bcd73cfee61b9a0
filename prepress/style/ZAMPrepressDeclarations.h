// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/style/ZAMPrepressProperties.h"

#include <list>
#include <string>
#include <string_view>
#include <vector>

/// A declaration of one property: shorthands have been taken apart.
struct ZAMPrepressDeclaration {
    ZAMPrepressProperty property = ZAMPrepressProperty::Count;
    bool isImportant = false;
    std::string_view name; ///< of a variable ("--name"), otherwise empty
    std::string_view value;
};

/// Whether the value refers to variables and can only be judged where they are known.
[[nodiscard]] bool ZAMPrepressHasVariables(std::string_view value);

/// Appends the declarations of a block or of a style attribute, those left out that are in error or change no picture.
/// Values point into `text`, into `texts` or are literals.
void ZAMPrepressReadDeclarations(std::string_view text, std::list<std::string>& texts,
                                 std::vector<ZAMPrepressDeclaration>& declarations);
