// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/style/ZAMPrepressSelector.h"

/// Adds what a pseudo-class asks for ("first-child"). False when there is none of that name.
[[nodiscard]] bool ZAMPrepressApplyPseudoClass(std::string_view name, ZAMPrepressCompound& compound);

/// The same for one with arguments ("nth-child(2n)"), but for negations, which hold selectors. False for arguments in
/// error, too.
[[nodiscard]] bool ZAMPrepressApplyPseudoClass(std::string_view name, std::string_view arguments,
                                               std::list<std::string>& texts, ZAMPrepressCompound& compound);
