// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressComputer.h"

namespace {

// Those below take no longer than to look for them.
constexpr std::size_t kLong = 64;

} // namespace

std::optional<std::string_view> ZAMPrepressComputer::Compute(const ZAMPrepressPropertyRow& row,
                                                             std::string_view specified,
                                                             const ZAMPrepressValueBases& bases) {
    if (specified.size() < kLong) {
        return ComputeAnew(row, specified, bases);
    }
    const Key key(row.property, specified.data(), specified.size(), bases.fontSize, bases.parentWeight);
    const auto [found, isNew] = _Long.try_emplace(key);
    if (isNew && specified.size() <= kZAMPrepressLongestValue) {
        found->second = ComputeAnew(row, specified, bases);
    }
    return found->second;
}

std::optional<std::string_view> ZAMPrepressComputer::ComputeAnew(const ZAMPrepressPropertyRow& row,
                                                                 std::string_view specified,
                                                                 const ZAMPrepressValueBases& bases) {
    const auto computed = row.compute(specified, bases);
    if (!computed) {
        return std::nullopt;
    }
    return *computed == specified ? specified : *computed == row.initial ? row.initial : _Tree.Keep(*computed);
}
