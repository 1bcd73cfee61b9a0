// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

/// An attribute name together with one bit that stands for it. Every element keeps the union of its attributes' bits,
/// so that most questions for an attribute that is not there are answered without comparing a string. A name written in
/// the code gets its bit when it is compiled.
class ZAMLightXmlName {
public:
    // NOLINTNEXTLINE(google-explicit-constructor): a name is written as a literal.
    constexpr ZAMLightXmlName(std::string_view text) : _Text(text), _Bit(BitOf(text)) {}
    // NOLINTNEXTLINE(google-explicit-constructor)
    constexpr ZAMLightXmlName(const char* text) : ZAMLightXmlName(std::string_view(text)) {}

    [[nodiscard]] constexpr std::string_view GetText() const { return _Text; }
    [[nodiscard]] constexpr std::uint64_t GetBit() const { return _Bit; }

    /// FNV-1a of the name, folded to one of 64 bits.
    static constexpr std::uint64_t BitOf(std::string_view text) {
        std::uint32_t hash = 2166136261U;
        for (const char c : text) {
            hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
        }
        return std::uint64_t{1} << (hash >> 26U);
    }

private:
    std::string_view _Text;
    std::uint64_t _Bit;
};
