// SPDX-License-Identifier: MIT
// A test program that includes this has the fonts of two families and no others, whatever the machine has.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>
#include <vector>

/// The folder of this process's own font configuration.
inline std::string FontConfigurationFolder() {
    return testing::TempDir() + "zam-fonts-" + std::to_string(getpid());
}

/// Writes a font configuration that knows only the given folders of the system's fonts (their names below
/// /usr/share/fonts/truetype) and makes it this process's own. It must run before the first use of a font.
inline void UseFontFolders(const std::vector<std::string>& folders) {
    const std::string base = FontConfigurationFolder();
    std::filesystem::create_directories(base);
    std::ofstream file(base + "/fonts.conf");
    file << "<?xml version=\"1.0\"?><!DOCTYPE fontconfig SYSTEM \"fonts.dtd\"><fontconfig>";
    for (const std::string& folder : folders) {
        file << "<dir>/usr/share/fonts/truetype/" << folder << "</dir>";
    }
    file << "<include ignore_missing=\"yes\">/usr/share/fontconfig/conf.avail/30-metric-aliases.conf</include>"
         << "<alias><family>serif</family><prefer><family>Liberation Serif</family></prefer></alias>"
         << "<alias><family>cursive</family><prefer><family>DejaVu Serif</family></prefer></alias>"
         << "<alias><family>fantasy</family><prefer><family>DejaVu Sans</family></prefer></alias>"
         << "<cachedir>" << base << "/cache</cachedir></fontconfig>";
    file.close();
    setenv("FONTCONFIG_FILE", (base + "/fonts.conf").c_str(), 1);
}

/// True when a library of that name part is mapped into this process.
inline bool IsMapped(const std::string& namePart) {
    std::ifstream maps("/proc/self/maps");
    std::string line;
    while (std::getline(maps, line)) {
        if (line.find(namePart) != std::string::npos) {
            return true;
        }
    }
    return false;
}

/// Sets up the fonts that the tests may count on; a test that wants others runs alone.
class CommonFonts : public testing::Environment {
public:
    void SetUp() override { UseFontFolders({"liberation2", "dejavu"}); }
    void TearDown() override { std::filesystem::remove_all(FontConfigurationFolder()); }
};
inline testing::Environment* const commonFonts = testing::AddGlobalTestEnvironment(new CommonFonts);
