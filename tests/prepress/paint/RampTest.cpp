// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressPicture.h"
#include "prepress/paint/ZAMPrepressRamp.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace {

using Spread = ZAMPrepressSpread;
using Stops = std::vector<ZAMPrepressStop>;

const Stops kGrey = {{0.0, 0x000000, 1.0}, {1.0, 0xFFFFFF, 1.0}};
const Stops kJump = {{0.25, 0xFF0000, 1.0}, {0.5, 0x00FF00, 1.0}, {0.5, 0x0000FF, 1.0}};
const Stops kFading = {{0.0, 0xFF0000, 0.0}, {1.0, 0x0000FF, 1.0}};
const Stops kUnordered = {{0.6, 0xFF0000, 1.0}, {0.2, 0x00FF00, 1.0}, {7.0, 0x0000FF, 2.0}};

TEST(Ramp, ColoursAtOffsets) {
    struct Row {
        const Stops& stops;
        Spread spread;
        double offset;
        std::uint32_t pixel;
    };
    const double infinity = std::numeric_limits<double>::infinity();
    const Row rows[] = {
        {kGrey, Spread::Pad, 0.4, 0xFF666666},       {kGrey, Spread::Pad, -3.0, 0xFF000000},
        {kGrey, Spread::Pad, 3.0, 0xFFFFFFFF},       {kGrey, Spread::Pad, infinity, 0xFFFFFFFF},
        {kGrey, Spread::Repeat, 1.2, 0xFF333333},    {kGrey, Spread::Repeat, -0.2, 0xFFCCCCCC},
        {kGrey, Spread::Reflect, 1.2, 0xFFCCCCCC},   {kGrey, Spread::Reflect, -0.2, 0xFF333333},
        {kGrey, Spread::Reflect, 4.2, 0xFF333333},   {kJump, Spread::Pad, 0.0, 0xFFFF0000},
        {kJump, Spread::Pad, 0.35, 0xFF996600},      {kJump, Spread::Pad, 0.499999, 0xFF00FF00},
        {kJump, Spread::Pad, 0.5, 0xFF0000FF},       {kJump, Spread::Pad, 1.0, 0xFF0000FF},
        {kFading, Spread::Pad, 0.41, 0x69960069},    {kFading, Spread::Pad, 0.0, 0x00000000},
        {kUnordered, Spread::Pad, 0.5, 0xFFFF0000},  {kUnordered, Spread::Pad, 0.6, 0xFF00FF00},
        {kUnordered, Spread::Pad, 0.84, 0xFF006699}, {kUnordered, Spread::Pad, 1.0, 0xFF0000FF},
    };
    for (const Row& row : rows) {
        const ZAMPrepressRamp ramp(row.stops, row.spread);
        SCOPED_TRACE(row.offset);
        EXPECT_EQ(ZAMPrepressPicture::ToPixel(ramp.At(row.offset)), row.pixel);
        if (std::isfinite(row.offset)) {
            const auto average = ramp.Average(row.offset, row.offset + 1e-8);
            EXPECT_EQ(ZAMPrepressPicture::ToPixel(average), row.pixel);
        }
    }
}

TEST(Ramp, AveragesAreThoseOfManySamples) {
    for (const Stops& stops : {kGrey, kJump, kFading, kUnordered}) {
        for (const Spread spread : {Spread::Pad, Spread::Reflect, Spread::Repeat}) {
            const ZAMPrepressRamp ramp(stops, spread);
            for (const auto& [from, to] : {std::pair(0.1, 0.9), std::pair(-2.3, 0.4), std::pair(0.8, 5.3)}) {
                constexpr int kSamples = 20'000;
                ZAMPrepressPremultiplied sum{};
                for (int i = 0; i < kSamples; ++i) {
                    const auto colour = ramp.At(from + (to - from) * (i + 0.5) / kSamples);
                    for (std::size_t j = 0; j < sum.size(); ++j) {
                        sum.at(j) += colour.at(j) / kSamples;
                    }
                }
                const auto average = ramp.Average(from, to);
                for (std::size_t j = 0; j < sum.size(); ++j) {
                    EXPECT_NEAR(average.at(j), sum.at(j), 1e-3) << from << " to " << to << ", channel " << j;
                }
            }
        }
    }
}

TEST(Ramp, KnowsHowSteepItIs) {
    EXPECT_NEAR(ZAMPrepressRamp(kGrey, Spread::Pad).GetSteepness(), 255.0, 1e-9);
    EXPECT_TRUE(std::isinf(ZAMPrepressRamp(kGrey, Spread::Repeat).GetSteepness()));
    EXPECT_NEAR(ZAMPrepressRamp(kGrey, Spread::Reflect).GetSteepness(), 255.0, 1e-9);
    EXPECT_TRUE(std::isinf(ZAMPrepressRamp(kJump, Spread::Pad).GetSteepness()));
    const Stops oneColour = {{0.0, 0x102030, 0.5}, {0.5, 0x102030, 0.5}, {0.5, 0x102030, 0.5}};
    EXPECT_EQ(ZAMPrepressRamp(oneColour, Spread::Repeat).GetSteepness(), 0.0);
    EXPECT_TRUE(ZAMPrepressRamp(oneColour, Spread::Repeat).IsConstant());
    EXPECT_FALSE(ZAMPrepressRamp(kJump, Spread::Pad).IsConstant());
}

} // namespace
