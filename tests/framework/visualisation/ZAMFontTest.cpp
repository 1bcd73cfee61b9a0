// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMFont.h"

#include "framework/visualisation/ZAMOutlineFont.h"
#include "framework/visualisation/ZAMTextLayout.h"
#include "tests/framework/visualisation/FontSetup.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <set>
#include <thread>
#include <unistd.h>

namespace {

std::string NameOf(const ZAMFont* font) {
    return font == nullptr ? "" : font->GetName();
}

} // namespace

TEST(ZAMFont, FindsFontsByNameAndByFile) {
    const struct {
        const char* asked;
        std::string found;
    } rows[] = {{"Liberation Sans Bold", "Liberation Sans Bold"},
                {"LiberationMono-Italic.ttf", "Liberation Mono Italic"},
                {"C:\\fonts\\DEJAVUSANS.TTF", "DejaVu Sans"},
                {"a/b/dejavuserif-bold.ttf", "DejaVu Serif Bold"},
                {"times.ttf", "Liberation Serif"},
                {"arial.ttf", "Liberation Sans"},
                {"x/COUR.TTF", "Liberation Mono"},
                {"MTCORSVA.TTF", "DejaVu Serif"},
                {"Times New Roman", "Times New Roman"},
                {"liberation sans", ""},
                {"Nowhere", ""},
                {"times", ""},
                {"", ""}};
    for (const auto& row : rows) {
        EXPECT_EQ(NameOf(ZAMFont::sGetFont(row.asked)), row.found) << row.asked;
    }
    EXPECT_EQ(ZAMFont::sGetFont(nullptr), nullptr);
    EXPECT_NE(ZAMFont::sGetFont("Alpha Geometrique"), nullptr);
}

TEST(ZAMFont, ListsTheOrdinaryFaceOfAFamilyFirstAndStandInsLast) {
    std::set<std::string> families;
    std::set<std::string> names;
    bool standIns = false;
    for (int i = 1; i <= ZAMFont::sGetFontCount(); ++i) {
        const ZAMFont* font = ZAMFont::sGetFont(ZAMFont::sGetFontName(i));
        ASSERT_NE(font, nullptr);
        EXPECT_EQ(font->GetNumber(), i);
        EXPECT_TRUE(names.insert(font->GetName()).second) << font->GetName();
        if (families.insert(font->GetFamily()).second) {
            EXPECT_EQ(font->GetFace().slant, 0) << font->GetName();
            EXPECT_EQ(font->GetFace().weight, 400) << font->GetName();
            EXPECT_EQ(font->GetFace().stretch, 100) << font->GetName();
        }
        const bool installed = font->GetFamily().starts_with("Liberation") || font->GetFamily().starts_with("DejaVu");
        EXPECT_FALSE(installed && standIns) << font->GetName();
        standIns = standIns || !installed;
    }
    EXPECT_TRUE(families.contains("Arial") && families.contains("Courier New") && families.contains("DejaVu Sans"));
    EXPECT_FALSE(families.contains("Palatino"));
}

TEST(ZAMFont, InformsAboutItsFonts) {
    const ZAMFont* font = ZAMFont::sGetFont("DejaVu Sans Bold Oblique");
    ASSERT_NE(font, nullptr);
    std::string name;
    std::string file;
    int type = -1;
    EXPECT_EQ(ZAMFont::sGetFontGeneralInformation(font->GetNumber(), name, type, file), 1);
    EXPECT_EQ(name, "DejaVu Sans Bold Oblique");
    EXPECT_EQ(type, 2);
    EXPECT_TRUE(file.ends_with("/DejaVuSans-BoldOblique.ttf"));

    std::string family;
    std::string kind;
    std::string fullName;
    std::string postScriptName;
    int index = -1;
    int weight = -1;
    int slant = -1;
    float stretch = -1.0F;
    const auto inform = [&](int number) {
        return ZAMOutlineFont::sGetFontOtherGeneralInformation(number, name, file, index, weight, family, slant,
                                                               stretch, kind, fullName, postScriptName);
    };
    EXPECT_EQ(inform(font->GetNumber()), 1);
    EXPECT_EQ(family + '|' + fullName + '|' + postScriptName,
              "DejaVu Sans|DejaVu Sans Bold Oblique|DejaVuSans-BoldOblique");
    EXPECT_EQ(index, 0);
    EXPECT_EQ(weight, 700);
    EXPECT_EQ(slant, 2);
    EXPECT_EQ(stretch, 1.0F);
    for (const int number : {-1, 0, ZAMFont::sGetFontCount() + 1}) {
        EXPECT_EQ(inform(number), 0);
        EXPECT_EQ(ZAMFont::sGetFontGeneralInformation(number, name, type, file), 0);
        EXPECT_EQ(ZAMFont::sGetFontName(number), nullptr);
    }
    EXPECT_EQ(family, "DejaVu Sans");
}

// The tests below need a process of their own: what is loaded and which fonts there are is settled once.

TEST(ZAMFontAlone, DISABLED_LoadsNothingBeforeTheFirstFont) {
    const auto nothingMapped = [] {
        return !IsMapped("libpango") && !IsMapped("libfontconfig") && !IsMapped("ZAMPrintFonts");
    };
    EXPECT_TRUE(nothingMapped());
    EXPECT_TRUE(ZAMTextLayout("", {}).IsEmpty());
    EXPECT_TRUE(ZAMTextLayout("text", {.height = 0.0}).IsEmpty());
    EXPECT_TRUE(nothingMapped());
    std::thread others[4];
    for (std::thread& other : others) {
        other = std::thread([] { EXPECT_NE(ZAMFont::sGetFont("times.ttf"), nullptr); });
    }
    for (std::thread& other : others) {
        other.join();
    }
    EXPECT_TRUE(IsMapped("libpango") && IsMapped("libfontconfig") && IsMapped("ZAMPrintFonts"));
}

TEST(ZAMFontAlone, DISABLED_MakesDoWithoutFonts) {
    UseFontFolders({});
    EXPECT_EQ(ZAMFont::sGetFontCount(), 0);
    EXPECT_EQ(ZAMFont::sGetFont("times.ttf"), nullptr);
    EXPECT_TRUE(ZAMTextLayout("text", {}).IsEmpty());
    EXPECT_TRUE(ZAMTextLayout("text", {}).GetExtents().IsEmpty());
}

TEST(ZAMFontAlone, DISABLED_MakesDoWithOneFamily) {
    UseFontFolders({"lohit-devanagari"});
    EXPECT_EQ(ZAMFont::sGetFontCount(), 1);
    for (const char* name : {"times.ttf", "arial.ttf", "cour.ttf", "MTCORSVA.TTF", "Alpha Geometrique"}) {
        EXPECT_EQ(NameOf(ZAMFont::sGetFont(name)), "Lohit Devanagari") << name;
    }
    EXPECT_FALSE(ZAMTextLayout("text \u05e9 \U0001F600", {.weight = 27}).IsEmpty());
}

TEST(ZAMFontAlone, DISABLED_MakesDoWithoutTheModule) {
    EXPECT_EQ(ZAMFont::sGetFontCount(), 0);
    EXPECT_EQ(ZAMFont::sGetFont("arial.ttf"), nullptr);
    EXPECT_TRUE(ZAMTextLayout("text", {}).IsEmpty());
    EXPECT_TRUE(ZAMTextFace().GetOutline(1).IsEmpty());
}

TEST(ZAMFont, OpensItsModuleWithTheFirstFont) {
    EXPECT_TRUE(PassesAlone("ZAMFontAlone.DISABLED_LoadsNothingBeforeTheFirstFont"));
}

TEST(ZAMFont, MakesDoWithWhatThereIs) {
    EXPECT_TRUE(PassesAlone("ZAMFontAlone.DISABLED_MakesDoWithoutFonts"));
    EXPECT_TRUE(PassesAlone("ZAMFontAlone.DISABLED_MakesDoWithOneFamily"));
    const std::string elsewhere = testing::TempDir() + "zam-no-module-" + std::to_string(getpid());
    std::filesystem::create_directories(elsewhere);
    std::filesystem::copy_file("/proc/self/exe", elsewhere + "/test");
    EXPECT_TRUE(PassesAlone("ZAMFontAlone.DISABLED_MakesDoWithoutTheModule", elsewhere + "/test"));
    std::filesystem::remove_all(elsewhere);
}
