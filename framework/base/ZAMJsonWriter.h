// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"

#include <cstdint>
#include <initializer_list>
#include <ostream>
#include <string_view>
#include <type_traits>
#include <vector>

/// Writes JSON (RFC 8259) as it is told, without keeping a tree. Values come in order; inside an object each follows
/// its Key. Numbers are the shortest text that reads back exactly; what JSON cannot hold becomes "nan", "inf" or
/// "-inf". Text that is not UTF-8 is the caller's fault and is passed through. Write errors stay in the stream's state.
class ZAM_EXPORT ZAMJsonWriter {
public:
    explicit ZAMJsonWriter(std::ostream& out) : _Out(out) {}

    /// How the values of a container are set apart: behind one another, or each on an indented line of its own.
    enum class Layout : std::uint8_t { Inline, Lines };

    void BeginObject(Layout layout = Layout::Inline) { Begin('{', layout); }
    void EndObject() { End('}'); }
    void BeginArray(Layout layout = Layout::Inline) { Begin('[', layout); }
    void EndArray() { End(']'); }
    void Key(std::string_view name);

    void String(std::string_view text);
    void Number(double value);
    void Integer(std::int64_t value);
    void Null();
    /// An array of numbers: a point, a size, a matrix.
    void Numbers(std::initializer_list<double> values);

    /// A key with its value.
    void Member(std::string_view name, std::string_view text) {
        Key(name);
        String(text);
    }
    void Member(std::string_view name, std::initializer_list<double> values) {
        Key(name);
        Numbers(values);
    }
    template <class Value>
    requires std::is_arithmetic_v<Value> || std::is_enum_v<Value>
    void Member(std::string_view name, Value value) {
        Key(name);
        if constexpr (std::is_floating_point_v<Value>) {
            Number(value);
        } else {
            Integer(static_cast<std::int64_t>(value));
        }
    }

private:
    struct Level {
        Layout layout;
        bool empty;
    };

    void Begin(char bracket, Layout layout);
    void End(char bracket);
    void BeforeValue();
    void NewLine();
    void Quote(std::string_view text);

    std::ostream& _Out;
    std::vector<Level> _Levels;
    bool _AfterKey = false;
};
