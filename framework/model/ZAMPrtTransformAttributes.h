// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/mathematics/ZAMMath2x2Matrix.h"
#include "framework/mathematics/ZAMMathAffine2D.h"
#include "framework/mathematics/ZAMMathVector2D.h"

/// The transform of an element: one affine matrix M. Each Add… makes it M·A, so what is added last is applied first to
/// a point, and AddTranslation(t) then AddScaleX(s) scales, then translates. Angles are radians.
class ZAM_EXPORT ZAMPrtTransformAttributes {
public:
    void AddTranslation(const ZAMMathVector2D& offset) { Add({1.0, 0.0, 0.0, 1.0, offset.x, offset.y}); }
    void AddScaleX(double factor) { Add({factor, 0.0, 0.0, 1.0, 0.0, 0.0}); }
    void AddScaleY(double factor) { Add({1.0, 0.0, 0.0, factor, 0.0, 0.0}); }
    /// x' = x cos t − y sin t, y' = x sin t + y cos t.
    void AddRotation(float angle);
    /// x' = x + y tan t.
    void AddSkewX(float angle);
    /// y' = y + x tan t.
    void AddSkewY(float angle);
    void AddMatrix(const ZAMMath2x2Matrix& matrix) { Add(ZAMMathAffine2D::FromMatrix(matrix)); }

    /// The map from the element's own coordinates to its parent's.
    [[nodiscard]] const ZAMMathAffine2D& GetMatrix() const { return _Matrix; }
    [[nodiscard]] bool IsIdentity() const { return _Matrix == ZAMMathAffine2D(); }

    bool operator==(const ZAMPrtTransformAttributes&) const = default;

private:
    void Add(const ZAMMathAffine2D& next) { _Matrix = _Matrix * next; }

    ZAMMathAffine2D _Matrix;
};
