// SPDX-License-Identifier: MIT
#include "prepress/text/ZAMPrepressTextPositions.h"

#include "prepress/geometry/ZAMPrepressScanner.h"

#include <algorithm>
#include <cmath>

namespace {

// Takes the next number off a list; nothing at its end and at its first error.
std::optional<double> TakeNumber(ZAMPrepressScanner& scanner) {
    scanner.SkipSeparator();
    const std::string_view number = scanner.TakeNumber();
    const double value = ZAMPrepressNumber(number);
    return number.empty() || !std::isfinite(value) ? std::nullopt : std::optional(value);
}

} // namespace

ZAMPrepressTextPositions::ZAMPrepressTextPositions(const ZAMPrepressTextContent& content) {
    for (const ZAMPrepressTextSpan& span : content.GetSpans()) {
        Read(span);
        ReadRotations(span);
    }
}

std::size_t ZAMPrepressTextPositions::FindNext(std::size_t first, std::size_t end) const {
    const std::size_t known = std::min(end, _Indices.size());
    while (first < known && _Indices[first] == 0) {
        ++first;
    }
    return first < known ? first : end;
}

ZAMPrepressTextPositions::Position& ZAMPrepressTextPositions::At(std::size_t character) {
    if (character >= _Indices.size()) {
        _Indices.resize(character + 1);
    }
    if (_Indices[character] == 0) {
        _Indices[character] = static_cast<std::uint32_t>(_Positions.size());
        _Positions.emplace_back();
    }
    return _Positions[_Indices[character]];
}

void ZAMPrepressTextPositions::Read(const ZAMPrepressTextSpan& span) {
    const auto read = [&](std::string_view attribute, auto set) {
        ZAMPrepressScanner scanner(span.element->Get(attribute));
        for (std::size_t character = span.firstCharacter; character < span.endCharacter; ++character) {
            const auto number = TakeNumber(scanner);
            if (!number) {
                return;
            }
            set(At(character), *number);
        }
    };
    // Along a path the place is the path's.
    if (!span.Is("textPath")) {
        read("x", [](Position& position, double x) { position.x = x; });
        read("y", [](Position& position, double y) { position.y = y; });
    }
    read("dx", [](Position& position, double dx) { position.dx = dx; });
    read("dy", [](Position& position, double dy) { position.dy = dy; });
}

// The last rotation goes on to the end of the element.
void ZAMPrepressTextPositions::ReadRotations(const ZAMPrepressTextSpan& span) {
    ZAMPrepressScanner scanner(span.element->Get("rotate"));
    std::optional<double> next = TakeNumber(scanner);
    double rotation = 0.0;
    if (!next) {
        return;
    }
    for (std::size_t character = span.firstCharacter; character < span.endCharacter; ++character) {
        if (next) {
            rotation = *next;
            next = TakeNumber(scanner);
        }
        At(character).rotation = rotation;
    }
}
