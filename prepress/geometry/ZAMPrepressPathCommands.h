// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/geometry/ZAMPrepressScanner.h"

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

/// Cuts path data (SVG 1.1, 8.3) into commands, each with the arguments of one segment, in one pass and without a copy.
class ZAMPrepressPathCommands {
public:
    /// The data must outlive the commands.
    explicit ZAMPrepressPathCommands(std::string_view data) : _Scanner(data) {}

    struct Command {
        char letter = '\0';       ///< what the segment is; behind a move without a letter of its own it is a line
        std::string_view written; ///< the letter where it stands in the data, empty when it is carried on
        std::array<std::string_view, 7> arguments;
        std::size_t count = 0; ///< of the arguments

        [[nodiscard]] std::span<const std::string_view> GetArguments() const {
            return std::span(arguments).first(count);
        }
        [[nodiscard]] bool IsRelative() const { return letter >= 'a'; }
        [[nodiscard]] char GetKind() const { return static_cast<char>(IsRelative() ? letter - ('a' - 'A') : letter); }
    };

    /// False at the end of the data and at its first error; `command` is unspecified then.
    bool Next(Command& command);

    /// Whether Next stopped at an error. What it gave before is to be drawn (SVG 1.1, F.2).
    [[nodiscard]] bool HasFailed() const { return _Failed; }

private:
    bool Fail() {
        _Failed = true;
        return false;
    }
    bool TakeLetter(Command& command);
    bool TakeArguments(Command& command);

    ZAMPrepressScanner _Scanner;
    char _Letter = '\0'; // of the segment before
    bool _Failed = false;
};
