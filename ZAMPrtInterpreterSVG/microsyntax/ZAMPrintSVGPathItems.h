// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// Cuts path data (SVG 1.1, 8.3) into its commands, in one pass and without a copy. A command runs from its letter to
/// the next command letter or semicolon; anything else that stands alone is a command that nobody knows.
///
/// The rules are those of a text in which "e-" is hidden as "eee", each "-" gets a blank and each letter a semicolon in
/// front, and "eee" then becomes "e-" again. So "eee" and "ee-" read differently afterwards; only a text that may hold
/// one of them is really rewritten.
class ZAMPrintSVGPathItems {
public:
    /// The data must outlive the items.
    explicit ZAMPrintSVGPathItems(std::string_view data);

    /// True when the data holds a command letter or a semicolon: without one it is no path at all.
    static bool HoldsItem(std::string_view data);

    struct Item {
        char command;               ///< the letter in upper case, 0 for none that is known
        bool relative;              ///< the letter was a small one
        std::string_view arguments; ///< what stands behind the letter
    };

    /// False, and `item` as it was, when no command is left.
    bool Next(Item& item);

private:
    static std::string ModifyPathString(std::string_view data);

    std::string _Modified; // only for data with "ee" in it
    std::string_view _Rest;
};
