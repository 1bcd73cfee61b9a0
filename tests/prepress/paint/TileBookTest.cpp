// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressTileBook.h"
#include "tests/prepress/Documents.h"

#include <gtest/gtest.h>

namespace {

class TileBook : public testing::Test {
protected:
    // A tile that tells how large it was drawn.
    ZAMPrepressTile MakeTile(const std::string& key, const ZAMPrepressPixels& pixels) {
        return {key, {0.0, 0.0, 10.0, 10.0}, pixels, {0.0, 0.0, 0.0, 1.0}, [this](const ZAMPrepressPixels& drawn) {
                    _Drawn.push_back(drawn);
                    return drawn.width == 1 ? std::string() : std::string("picture");
                }};
    }
    ZAMPrepressElement& Fill(const std::string& key, const ZAMPrepressPixels& pixels) {
        ZAMPrepressElement& leaf = _Tree.NewElement("rect");
        _Book.Fill(leaf, MakeTile(key, pixels));
        return leaf;
    }

    ZAMPrepressTree _Tree{ParseDocument("<svg><g id=\"tile-1\"/></svg>")};
    ZAMPrepressIds _Ids{_Tree};
    ZAMPrepressTileBook _Book{_Tree, _Ids};
    std::vector<ZAMPrepressPixels> _Drawn;
};

TEST_F(TileBook, DrawsEachTileOnceAsFinelyAsItIsShown) {
    const ZAMPrepressElement& first = Fill("a", {300, 20});
    const ZAMPrepressElement& second = Fill("a", {200, 30});
    const ZAMPrepressElement& empty = Fill("b", {1, 7});
    EXPECT_TRUE(_Drawn.empty());
    _Book.Close();
    ASSERT_EQ(_Drawn.size(), 2U);
    EXPECT_EQ(_Drawn[0].width, 300U);
    EXPECT_EQ(_Drawn[0].height, 30U);
    EXPECT_EQ(first.Get("fill"), "url(#tile-2)") << "the other id is taken";
    EXPECT_EQ(second.Get("fill"), "url(#tile-2)");
    EXPECT_EQ(empty.Get("fill"), "#000000") << "the mean colour of what cannot be drawn";
    EXPECT_EQ(_Book.GetDefinitions().size(), 1U);
}

TEST_F(TileBook, SharesThePixelsThatThereMayBe) {
    constexpr std::size_t kLarge = 2000;
    for (int i = 0; i < 10; ++i) {
        Fill("large " + std::to_string(i), {kLarge, kLarge});
        Fill("small " + std::to_string(i), {100, 100});
    }
    _Book.Close();
    std::size_t sum = 0;
    for (const ZAMPrepressPixels& drawn : _Drawn) {
        sum += drawn.GetCount();
        EXPECT_TRUE(drawn.width == 100 || drawn.width > 1000) << "small ones keep theirs: " << drawn.width;
    }
    EXPECT_LE(sum, 12'000'000U);
    EXPECT_GT(sum, 11'900'000U);
}

TEST_F(TileBook, DrawsSoManyElementsAndNoMore) {
    EXPECT_TRUE(_Book.Spend(290'000));
    EXPECT_TRUE(_Book.Spend(5'000));
    EXPECT_FALSE(_Book.Spend(6'000));
    EXPECT_FALSE(_Book.Spend(1)) << "trying goes on no more";
}

} // namespace
