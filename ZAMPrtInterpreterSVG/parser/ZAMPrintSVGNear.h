// SPDX-License-Identifier: MIT
#pragma once

/// Decides what differs from the identity: within 0.01, held in single precision.
inline bool ZAMPrintSVGIsNear(double value, double reference) {
    constexpr double kTolerance = 0.01F;
    return !(value > reference + kTolerance) && !(value < reference - kTolerance);
}
