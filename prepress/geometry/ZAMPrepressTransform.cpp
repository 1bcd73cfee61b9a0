// SPDX-License-Identifier: MIT
#include "prepress/geometry/ZAMPrepressTransform.h"

#include "framework/mathematics/ZAMMathConstants.h"

#include <algorithm>
#include <cmath>

namespace {

using Values = std::array<double, 6>;

ZAMMathAffine2D Matrix(const Values& v, std::size_t /*count*/) {
    return {v[0], v[1], v[2], v[3], v[4], v[5]};
}

ZAMMathAffine2D Translation(const Values& v, std::size_t /*count*/) {
    return {1.0, 0.0, 0.0, 1.0, v[0], v[1]};
}

ZAMMathAffine2D Scale(const Values& v, std::size_t count) {
    return {v[0], 0.0, 0.0, count > 1 ? v[1] : v[0], 0.0, 0.0};
}

ZAMMathAffine2D Rotation(const Values& v, std::size_t /*count*/) {
    const double angle = v[0] * ZAMDegreeToRadian;
    const ZAMMathAffine2D turn{std::cos(angle), std::sin(angle), -std::sin(angle), std::cos(angle), 0.0, 0.0};
    return Translation({v[1], v[2]}, 2) * turn * Translation({-v[1], -v[2]}, 2);
}

ZAMMathAffine2D SkewX(const Values& v, std::size_t /*count*/) {
    return {1.0, 0.0, std::tan(v[0] * ZAMDegreeToRadian), 1.0, 0.0, 0.0};
}

ZAMMathAffine2D SkewY(const Values& v, std::size_t /*count*/) {
    return {1.0, std::tan(v[0] * ZAMDegreeToRadian), 0.0, 1.0, 0.0, 0.0};
}

struct Kind {
    std::string_view name;
    std::array<std::size_t, 2> counts; ///< of arguments, either of which will do
    ZAMMathAffine2D (*matrix)(const Values& values, std::size_t count);
};

constexpr Kind kKinds[] = {
    {"matrix", {6, 6}, Matrix},   {"translate", {1, 2}, Translation}, {"scale", {1, 2}, Scale},
    {"rotate", {1, 3}, Rotation}, {"skewX", {1, 1}, SkewX},           {"skewY", {1, 1}, SkewY},
};

const Kind* FindKind(std::string_view name) {
    const auto* const kind = std::ranges::find(kKinds, name, &Kind::name);
    return kind != std::end(kKinds) ? kind : nullptr;
}

} // namespace

ZAMMathAffine2D ZAMPrepressTransformFunctions::Function::GetMatrix() const {
    Values values{};
    std::ranges::transform(GetArguments(), values.begin(), ZAMPrepressNumber);
    return FindKind(name)->matrix(values, count);
}

bool ZAMPrepressTransformFunctions::Next(Function& function) {
    _Scanner.SkipSpace();
    while (_Scanner.SkipSeparator()) {
    }
    if (_Failed || _Scanner.AtEnd()) {
        return false;
    }
    _Failed = !TakeFunction(function);
    return !_Failed;
}

bool ZAMPrepressTransformFunctions::TakeFunction(Function& function) {
    function.name = _Scanner.TakeWord();
    const Kind* const kind = FindKind(function.name);
    _Scanner.SkipSpace();
    function.open = _Scanner.GetRest().substr(0, 1);
    if (kind == nullptr || !_Scanner.Take('(')) {
        return false;
    }
    _Scanner.SkipSpace();
    function.count = 0;
    for (bool comma = false; comma || _Scanner.Peek() != ')'; comma = _Scanner.SkipSeparator()) {
        const std::string_view argument = _Scanner.TakeNumber();
        if (argument.empty() || function.count == function.arguments.size()) {
            return false;
        }
        function.arguments[function.count++] = argument;
    }
    function.close = _Scanner.GetRest().substr(0, 1);
    _Scanner.Take(')');
    return std::ranges::find(kind->counts, function.count) != kind->counts.end();
}

std::optional<ZAMMathAffine2D> ZAMPrepressReadTransform(std::string_view text) {
    ZAMMathAffine2D matrix;
    ZAMPrepressTransformFunctions functions(text);
    for (ZAMPrepressTransformFunctions::Function function; functions.Next(function);) {
        matrix = matrix * function.GetMatrix();
    }
    if (functions.HasFailed() || !matrix.IsFinite()) {
        return std::nullopt;
    }
    return matrix;
}
