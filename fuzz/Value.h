// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// An attribute value that is fuzzed, and in its first byte what else a parser is told.
struct FuzzedValue {
    FuzzedValue(const std::uint8_t* data, std::size_t size)
        : choice(size == 0 ? 0 : data[0]),
          text(size == 0 ? std::string_view() : std::string_view(reinterpret_cast<const char*>(data) + 1, size - 1)) {}

    unsigned int choice;
    std::string_view text;
};
