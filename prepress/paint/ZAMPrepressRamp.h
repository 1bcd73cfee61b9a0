// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

/// Red, green, blue and alpha from 0 to 1, the colours multiplied by the alpha.
using ZAMPrepressPremultiplied = std::array<double, 4>;

/// What a gradient does beyond its ends (SVG 1.1, 13.2.2).
enum class ZAMPrepressSpread : std::uint8_t { Pad, Reflect, Repeat };

/// A stop of a gradient.
struct ZAMPrepressStop {
    double offset = 0.0;      ///< out of range or out of order counts as the nearest that is not
    std::uint32_t colour = 0; ///< 0xRRGGBB
    double opacity = 1.0;

    bool operator==(const ZAMPrepressStop&) const = default;
};

/// The colours of a gradient along its offsets, mixed as sRGB values.
class ZAMPrepressRamp {
public:
    /// There is at least one stop.
    ZAMPrepressRamp(std::span<const ZAMPrepressStop> stops, ZAMPrepressSpread spread);

    [[nodiscard]] ZAMPrepressSpread GetSpread() const { return _Spread; }
    /// The offset from 0 to 1 that looks the same, but for jumps at the ends. Any number gives one of them.
    [[nodiscard]] double Fold(double offset) const;
    /// The colour at an offset, which may lie outside 0 to 1.
    [[nodiscard]] ZAMPrepressPremultiplied At(double offset) const;
    /// The mean colour between two offsets, the first not above the second: what a pixel shows that covers them.
    [[nodiscard]] ZAMPrepressPremultiplied Average(double from, double to) const;
    /// The mean colour from 0 to 1.
    [[nodiscard]] ZAMPrepressPremultiplied GetMean() const { return _Knots.back().integral; }
    /// The colour of the last stop.
    [[nodiscard]] ZAMPrepressPremultiplied GetLast() const { return _Knots.back().colour; }
    /// All offsets have the same colour.
    [[nodiscard]] bool IsConstant() const { return _IsConstant; }
    /// By how many 255ths the colour changes at most while the offset moves by 1; infinite when the colour jumps.
    [[nodiscard]] double GetSteepness() const { return _Steepness; }

private:
    // Between two knots the colour changes evenly. Of several at one offset the first ends what is before, the last
    // begins what follows.
    struct Knot {
        double offset;
        ZAMPrepressPremultiplied colour;
        ZAMPrepressPremultiplied integral; // of the colour from 0 to here
    };

    void AddKnot(double offset, const ZAMPrepressPremultiplied& colour);
    [[nodiscard]] ZAMPrepressPremultiplied IntegrateWithin(double offset) const;
    [[nodiscard]] ZAMPrepressPremultiplied Integrate(double offset) const;

    [[nodiscard]] double FindSteepness() const;

    std::vector<Knot> _Knots;
    ZAMPrepressSpread _Spread;
    bool _IsConstant;
    double _Steepness;
};
