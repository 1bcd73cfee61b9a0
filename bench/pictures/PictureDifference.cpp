// SPDX-License-Identifier: MIT
#include "bench/pictures/PictureDifference.h"

#include <algorithm>

namespace {

/// A tenth of a channel's range is hardly seen side by side; more shows.
constexpr int kTolerance = 26;

/// The lowest and highest value of each channel among some pixels.
class Range {
public:
    explicit Range(const PictureColour& colour) : _Lowest(colour), _Highest(colour) {}

    void Include(const PictureColour& colour) {
        for (std::size_t channel = 0; channel != colour.size(); ++channel) {
            _Lowest[channel] = std::min(_Lowest[channel], colour[channel]);
            _Highest[channel] = std::max(_Highest[channel], colour[channel]);
        }
    }

    /// How far the colour is outside, in the channel where that is most.
    [[nodiscard]] int GetDistance(const PictureColour& colour) const {
        int distance = 0;
        for (std::size_t channel = 0; channel != colour.size(); ++channel) {
            distance = std::max({distance, _Lowest[channel] - colour[channel], colour[channel] - _Highest[channel]});
        }
        return distance;
    }

private:
    PictureColour _Lowest;
    PictureColour _Highest;
};

/// The 3 x 3 pixels around x, y. Around a picture there is paper, which edges along its sides may be smoothed with.
Range GetRange(const Picture& picture, std::size_t x, std::size_t y) {
    Range range(picture.At(x, y));
    for (const std::size_t row : {y - 1, y, y + 1}) {
        for (const std::size_t column : {x - 1, x, x + 1}) {
            // What is before the first one has wrapped to far beyond the last.
            const bool isInside = row < picture.GetHeight() && column < picture.GetWidth();
            range.Include(isInside ? picture.At(column, row) : kPaper);
        }
    }
    return range;
}

bool IsFarApart(std::size_t side, std::size_t otherSide) {
    return std::max(side, otherSide) - std::min(side, otherSide) > 1;
}

} // namespace

PictureDifference::PictureDifference(const Picture& first, const Picture& second)
    : _Map(std::min(first.GetWidth(), second.GetWidth()), std::min(first.GetHeight(), second.GetHeight())) {
    if (IsFarApart(first.GetWidth(), second.GetWidth()) || IsFarApart(first.GetHeight(), second.GetHeight())) {
        _Inked = _Differing = _Map.GetWidth() * _Map.GetHeight();
        return;
    }
    Compare(first, second);
}

void PictureDifference::Compare(const Picture& first, const Picture& second) {
    for (std::size_t y = 0; y != _Map.GetHeight(); ++y) {
        for (std::size_t x = 0; x != _Map.GetWidth(); ++x) {
            const PictureColour& one = first.At(x, y);
            const PictureColour& other = second.At(x, y);
            if (one == kPaper && other == kPaper) {
                continue;
            }
            ++_Inked;
            const int distance =
                std::max(GetRange(second, x, y).GetDistance(one), GetRange(first, x, y).GetDistance(other));
            if (distance > kTolerance) {
                ++_Differing;
            }
            const auto rest = static_cast<std::uint8_t>(255 - distance);
            _Map.At(x, y) = {255, rest, rest};
        }
    }
}

double PictureDifference::GetShare() const {
    const std::size_t least = std::max<std::size_t>(1, _Map.GetWidth() * _Map.GetHeight() / 100);
    return static_cast<double>(_Differing) / static_cast<double>(std::max(_Inked, least));
}
