// SPDX-License-Identifier: MIT
#include "bench/pictures/PictureDifference.h"

#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>

namespace {

/// Pictures as text: a letter a pixel, rows set apart by '/'.
PictureColour GetColour(char letter) {
    switch (letter) {
    case '#':
        return {0, 0, 0};
    case '+':
        return {128, 128, 128};
    case ',':
        return {235, 235, 235};
    case 'r':
        return {255, 0, 0};
    default:
        return kPaper;
    }
}

Picture Draw(const std::string& rows) {
    const std::size_t width = std::min(rows.find('/'), rows.size());
    Picture picture(width, (rows.size() + 1) / (width + 1));
    for (std::size_t y = 0; y != picture.GetHeight(); ++y) {
        for (std::size_t x = 0; x != width; ++x) {
            picture.At(x, y) = GetColour(rows[y * (width + 1) + x]);
        }
    }
    return picture;
}

struct Row {
    const char* what;
    const char* first;
    const char* second;
    double share;
};

constexpr Row kRows[] = {
    {"nothing on both", "....", "....", 0.0},
    {"the same", ".##./.##.", ".##./.##.", 0.0},
    {"an edge smoothed, and not", "###+..", "####..", 0.0},
    {"an edge a pixel farther", "###...", "####..", 0.0},
    {"an edge two pixels farther", "##..../##..../##....", "####../####../####..", 4.0 / 12.0},
    {"a hairline that is missing", "...../#####/.....", "...../...../.....", 1.0},
    {"a hairline a row below", "...../#####/...../.....", "...../...../#####/.....", 0.0},
    {"an edge along the side smoothed", "+###", "####", 0.0},
    {"hardly seen", ",,,,", "....", 0.0},
    {"another colour", "rrrr", "####", 1.0},
    {"paper is not counted", "r######/......./.......", "r....../......./.......", 6.0 / 7.0},
    {"one side a pixel longer", "####", "#####", 0.0},
    {"another size", "####", "######", 1.0},
};

TEST(PictureDifference, CountsWhatShowsAndNotHowEdgesAreSmoothed) {
    for (const Row& row : kRows) {
        const Picture first = Draw(row.first);
        const Picture second = Draw(row.second);
        EXPECT_NEAR(PictureDifference(first, second).GetShare(), row.share, 1e-12) << row.what;
        EXPECT_NEAR(PictureDifference(second, first).GetShare(), row.share, 1e-12)
            << row.what << ", the other way round";
    }
}

TEST(PictureDifference, ASpeckOnAnEmptyPageIsLittle) {
    const Picture empty(100, 100);
    Picture speck = empty;
    speck.At(50, 50) = {0, 0, 0};
    EXPECT_NEAR(PictureDifference(empty, speck).GetShare(), 0.01, 1e-12);
}

TEST(PictureDifference, MapIsRedWhereItDiffers) {
    const PictureDifference difference(Draw("#...."), Draw("#...#"));
    EXPECT_EQ(difference.GetMap().At(0, 0), kPaper);
    EXPECT_EQ(difference.GetMap().At(4, 0), (PictureColour{255, 0, 0}));
}

TEST(Picture, IsReadAsItWasWritten) {
    const std::string file = testing::TempDir() + "picture-" + std::to_string(getpid()) + ".png";
    const Picture picture = Draw("#r+/.,#");
    ASSERT_TRUE(picture.Write(file));
    const std::optional<Picture> read = Picture::Read(file);
    std::remove(file.c_str());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->GetWidth(), 3U);
    EXPECT_EQ(PictureDifference(picture, *read).GetShare(), 0.0);
    EXPECT_EQ(read->At(2, 0), GetColour('+'));
    EXPECT_FALSE(Picture::Read(file));
}

} // namespace
