// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/text/ZAMPrepressTextContent.h"

#include <cstdint>
#include <optional>
#include <vector>

/// What the attributes x, y, dx, dy and rotate of a text and the elements in it say of single characters (SVG 1.1,
/// 10.5), whose lengths are numbers. Of two elements the inner one counts.
class ZAMPrepressTextPositions {
public:
    struct Position {
        std::optional<double> x;
        std::optional<double> y;
        double dx = 0.0;
        double dy = 0.0;
        double rotation = 0.0; ///< degrees, clockwise

        [[nodiscard]] bool Moves() const { return x || y || dx != 0.0 || dy != 0.0; }
    };

    explicit ZAMPrepressTextPositions(const ZAMPrepressTextContent& content);

    [[nodiscard]] const Position& Get(std::size_t character) const {
        return _Positions[character < _Indices.size() ? _Indices[character] : 0];
    }
    /// The first character from `first` on, and before `end`, of which something is said; `end` when there is none.
    [[nodiscard]] std::size_t FindNext(std::size_t first, std::size_t end) const;

private:
    void Read(const ZAMPrepressTextSpan& span);
    void ReadRotations(const ZAMPrepressTextSpan& span);
    [[nodiscard]] Position& At(std::size_t character);

    std::vector<Position> _Positions{1}; // the first one is that of all characters of which nothing is said
    std::vector<std::uint32_t> _Indices; // of the characters' positions, no longer than need be
};
