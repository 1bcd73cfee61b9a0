// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

/// A growable list of doubles, indexed from 1. Point lists hold x at odd and y at even positions.
class ZAMRawColldouble {
public:
    [[nodiscard]] std::size_t GetCount() const noexcept { return _Values.size(); }
    [[nodiscard]] bool IsEmpty() const noexcept { return _Values.empty(); }

    /// `position` is from 1 to the count.
    double& operator[](std::size_t position) { return _Values[position - 1]; }
    double operator[](std::size_t position) const { return _Values[position - 1]; }

    void Append(double value) { _Values.push_back(value); }
    /// Empties the list and keeps its memory for the next one.
    void Clear() noexcept { _Values.clear(); }

    [[nodiscard]] const double* GetData() const noexcept { return _Values.data(); }

private:
    std::vector<double> _Values;
};
