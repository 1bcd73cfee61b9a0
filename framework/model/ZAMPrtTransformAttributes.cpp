// SPDX-License-Identifier: MIT
#include "framework/model/ZAMPrtTransformAttributes.h"

#include <cmath>

void ZAMPrtTransformAttributes::AddRotation(float angle) {
    const double radians = angle;
    Add({std::cos(radians), std::sin(radians), -std::sin(radians), std::cos(radians), 0.0, 0.0});
}

void ZAMPrtTransformAttributes::AddSkewX(float angle) {
    Add({1.0, 0.0, std::tan(static_cast<double>(angle)), 1.0, 0.0, 0.0});
}

void ZAMPrtTransformAttributes::AddSkewY(float angle) {
    Add({1.0, std::tan(static_cast<double>(angle)), 0.0, 1.0, 0.0, 0.0});
}
