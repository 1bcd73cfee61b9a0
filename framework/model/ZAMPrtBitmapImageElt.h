// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/mathematics/ZAMMathPoint2D.h"
#include "framework/mathematics/ZAMMathVector2D.h"
#include "framework/model/ZAMPrtEltOf.h"
#include "framework/visualisation/ZAMPixelImage.h"

/// A picture made of pixels that fills the rectangle from its origin (lower left) with its size, turned about the
/// origin. Without pixels, or with a size that is not finite and positive, it draws nothing.
class ZAM_EXPORT ZAMPrtBitmapImageElt : public ZAMPrtEltOf<ZAMPrtBitmapImageElt, ZAMPrtGraphicPrimitiveElt> {
public:
    static constexpr std::string_view kClassName = "ZAMPrtBitmapImageElt";

    [[nodiscard]] const ZAMMathPoint2D& GetOrigin() const { return _Origin; }
    void SetOrigin(const ZAMMathPoint2D& origin) { _Origin = origin; }
    [[nodiscard]] const ZAMMathVector2D& GetSize() const { return _Size; }
    void SetSize(double width, double height) { _Size = {width, height}; }
    /// The angle in radians by which the rectangle is turned about its origin, counter-clockwise.
    [[nodiscard]] float GetDirection() const { return _Direction; }
    void SetDirection(float direction) { _Direction = direction; }

    /// Null when there are no pixels. Copies of the element share them.
    [[nodiscard]] ZAMPixelImage* GetPixelImage() const { return _PixelImage.Get(); }
    /// Takes a reference of its own.
    void SetPixelImage(ZAMPixelImage* image) { _PixelImage = ZAMRef<ZAMPixelImage>::Share(image); }

    /// From the unit square (0,0 the picture's lower left corner, 1,1 its upper right) to the element's coordinates.
    [[nodiscard]] ZAMMathAffine2D GetPlacement() const;

private:
    ZAMMathPoint2D _Origin;
    ZAMMathVector2D _Size;
    ZAMRef<ZAMPixelImage> _PixelImage;
    float _Direction = 0.0F;
};
