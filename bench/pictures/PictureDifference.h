// SPDX-License-Identifier: MIT
#pragma once

#include "bench/pictures/Picture.h"

/// How far two pictures of the same drawing, made by two renderers, look different.
///
/// A pixel is compared with the 3 x 3 pixels around its place in the other picture: each of its channels may have any
/// value from their lowest to their highest. So edges may be smoothed differently or lie up to a pixel apart and count
/// as equal, while a thing that is missing or has another colour does not. What a pixel is beyond that range is its
/// difference; the larger one counts of both pictures' pixels at a place.
class PictureDifference {
public:
    /// Pictures whose sides differ by more than a pixel differ everywhere.
    PictureDifference(const Picture& first, const Picture& second);

    /// The differing share of the inked pixels, 0 to 1: those that are not paper in both pictures, but no fewer than
    /// a hundredth of all, lest a speck on an empty page counts for all of it.
    [[nodiscard]] double GetShare() const;

    /// The differences, from white (none) to red (complete).
    [[nodiscard]] const Picture& GetMap() const { return _Map; }

private:
    void Compare(const Picture& first, const Picture& second);

    Picture _Map;
    std::size_t _Inked = 0;
    std::size_t _Differing = 0;
};
