// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <list>
#include <string>
#include <string_view>

/// Told of each rule of a sheet: its selectors and the inside of its block, both as written.
using ZAMPrepressRuleReader = std::function<void(std::string_view selectors, std::string_view block)>;

/// Reads the rules of a sheet that hold for paper, in order (CSS Syntax 3, 5.4): other sheets are not fetched, and of
/// the at-rules only @media counts. Rules in error end where their block ends.
void ZAMPrepressReadSheet(std::string_view sheet, std::list<std::string>& texts, const ZAMPrepressRuleReader& reader);
