// SPDX-License-Identifier: MIT
#include "framework/model/ZAMPrtBitmapImageElt.h"

#include <cmath>

ZAMMathAffine2D ZAMPrtBitmapImageElt::GetPlacement() const {
    const double angle = _Direction;
    const double cosine = std::cos(angle);
    const double sine = std::sin(angle);
    return {_Size.x * cosine, _Size.x * sine, -_Size.y * sine, _Size.y * cosine, _Origin.x, _Origin.y};
}
