// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressRamp.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using Colour = ZAMPrepressPremultiplied;

// Where colour and opacity change together their product is a curve, which so many straight pieces follow closely.
constexpr int kPieces = 16;
// Offsets beyond this are as good as infinite; sums of them would lose the digits that tell colours apart.
constexpr double kFarthest = 1e6;
// A shorter span has no more to show than its middle.
constexpr double kShortest = 1e-9;

Colour Scaled(const Colour& colour, double factor) {
    return {colour[0] * factor, colour[1] * factor, colour[2] * factor, colour[3] * factor};
}

Colour Sum(const Colour& one, const Colour& other) {
    return {one[0] + other[0], one[1] + other[1], one[2] + other[2], one[3] + other[3]};
}

Colour Mix(const Colour& one, const Colour& other, double share) {
    return Sum(Scaled(one, 1.0 - share), Scaled(other, share));
}

double Difference(const Colour& one, const Colour& other) {
    double largest = 0.0;
    for (std::size_t i = 0; i < one.size(); ++i) {
        largest = std::max(largest, std::abs(one.at(i) - other.at(i)));
    }
    return largest;
}

Colour Straight(const ZAMPrepressStop& stop) {
    const auto channel = [&](unsigned int shift) { return static_cast<double>(stop.colour >> shift & 0xFFU) / 255.0; };
    return {channel(16), channel(8), channel(0), std::clamp(stop.opacity, 0.0, 1.0)};
}

Colour Premultiplied(const Colour& straight) {
    return {straight[0] * straight[3], straight[1] * straight[3], straight[2] * straight[3], straight[3]};
}

double FoldPeriod(double offset, double period) {
    return offset - period * std::floor(offset / period);
}

} // namespace

ZAMPrepressRamp::ZAMPrepressRamp(std::span<const ZAMPrepressStop> stops, ZAMPrepressSpread spread) : _Spread(spread) {
    Colour last = Straight(stops.front());
    double lastOffset = 0.0;
    AddKnot(0.0, Premultiplied(last));
    for (const ZAMPrepressStop& stop : stops) {
        const Colour colour = Straight(stop);
        const double offset = std::clamp(stop.offset, lastOffset, 1.0);
        const bool isCurved = colour[3] != last[3] && offset > lastOffset;
        for (int i = 1; isCurved && i < kPieces; ++i) {
            const double share = static_cast<double>(i) / kPieces;
            AddKnot(lastOffset + (offset - lastOffset) * share, Premultiplied(Mix(last, colour, share)));
        }
        AddKnot(offset, Premultiplied(colour));
        last = colour;
        lastOffset = offset;
    }
    AddKnot(1.0, Premultiplied(last));
    _IsConstant = std::ranges::all_of(_Knots, [&](const Knot& knot) { return knot.colour == _Knots.front().colour; });
    _Steepness = FindSteepness();
}

void ZAMPrepressRamp::AddKnot(double offset, const Colour& colour) {
    Colour integral{};
    if (!_Knots.empty()) {
        const Knot& before = _Knots.back();
        integral = Sum(before.integral, Scaled(Mix(before.colour, colour, 0.5), offset - before.offset));
    }
    _Knots.push_back({offset, colour, integral});
}

double ZAMPrepressRamp::Fold(double offset) const {
    if (!std::isfinite(offset)) {
        return offset < 0.0 ? 0.0 : 1.0;
    }
    if (_Spread == ZAMPrepressSpread::Pad) {
        return std::clamp(offset, 0.0, 1.0);
    }
    if (_Spread == ZAMPrepressSpread::Repeat) {
        return FoldPeriod(offset, 1.0);
    }
    const double folded = FoldPeriod(offset, 2.0);
    return folded > 1.0 ? 2.0 - folded : folded;
}

Colour ZAMPrepressRamp::At(double offset) const {
    if (_Spread == ZAMPrepressSpread::Pad && offset < 0.0) {
        return _Knots.front().colour;
    }
    const double folded = Fold(offset);
    const auto after = std::upper_bound(_Knots.begin(), _Knots.end(), folded,
                                        [](double value, const Knot& knot) { return value < knot.offset; });
    if (after == _Knots.end()) {
        return _Knots.back().colour;
    }
    const Knot& before = *std::prev(after); // the first knot is at 0, so there is one
    return Mix(before.colour, after->colour, (folded - before.offset) / (after->offset - before.offset));
}

Colour ZAMPrepressRamp::IntegrateWithin(double offset) const {
    const auto after = std::upper_bound(_Knots.begin(), _Knots.end(), offset,
                                        [](double value, const Knot& knot) { return value < knot.offset; });
    if (after == _Knots.end()) {
        return _Knots.back().integral;
    }
    const Knot& before = *std::prev(after);
    const double way = offset - before.offset;
    const Colour here = Mix(before.colour, after->colour, way / (after->offset - before.offset));
    return Sum(before.integral, Scaled(Mix(before.colour, here, 0.5), way));
}

// From 0 to any offset, the repetitions included.
Colour ZAMPrepressRamp::Integrate(double offset) const {
    const Colour& whole = _Knots.back().integral;
    if (_Spread == ZAMPrepressSpread::Pad) {
        const Colour inside = IntegrateWithin(std::clamp(offset, 0.0, 1.0));
        const Colour& end = offset < 0.0 ? _Knots.front().colour : _Knots.back().colour;
        return Sum(inside, Scaled(end, offset < 0.0 ? offset : std::max(0.0, offset - 1.0)));
    }
    if (_Spread == ZAMPrepressSpread::Repeat) {
        const double rest = FoldPeriod(offset, 1.0);
        return Sum(Scaled(whole, offset - rest), IntegrateWithin(rest));
    }
    const double rest = FoldPeriod(offset, 2.0);
    const Colour part =
        rest <= 1.0 ? IntegrateWithin(rest) : Sum(Scaled(whole, 2.0), Scaled(IntegrateWithin(2.0 - rest), -1.0));
    return Sum(Scaled(whole, offset - rest), part);
}

Colour ZAMPrepressRamp::Average(double from, double to) const {
    if (!(to - from > kShortest) || !(from > -kFarthest && to < kFarthest)) {
        return At(from + (to - from) / 2.0);
    }
    return Scaled(Sum(Integrate(to), Scaled(Integrate(from), -1.0)), 1.0 / (to - from));
}

double ZAMPrepressRamp::FindSteepness() const {
    double steepest = 0.0;
    for (std::size_t i = 1; i < _Knots.size(); ++i) {
        const double change = 255.0 * Difference(_Knots[i - 1].colour, _Knots[i].colour);
        const double way = _Knots[i].offset - _Knots[i - 1].offset;
        if (change > 0.0) {
            steepest = std::max(steepest, way > 0.0 ? change / way : std::numeric_limits<double>::infinity());
        }
    }
    const bool jumpsBack = _Spread == ZAMPrepressSpread::Repeat && _Knots.front().colour != _Knots.back().colour;
    return jumpsBack ? std::numeric_limits<double>::infinity() : steepest;
}
