// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMath2x2Matrix.h"

#include <cmath>

/// How long a map makes a vector of length 1: at most and at least.
struct ZAMPrintCairoStretch {
    explicit ZAMPrintCairoStretch(const ZAMMath2x2Matrix& m) {
        const double turning = std::hypot(m.a + m.d, m.c - m.b);
        const double mirroring = std::hypot(m.a - m.d, m.c + m.b);
        longest = (turning + mirroring) / 2.0;
        shortest = std::abs(turning - mirroring) / 2.0;
    }

    double longest;
    double shortest;
};
