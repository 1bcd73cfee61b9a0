// SPDX-License-Identifier: MIT
// Each document below this folder is decoded and compared with the JSON beside it. With ZAM_REGENERATE=1 in the
// environment the JSON is written anew instead: read the difference before keeping it.
#include "tests/support/FontFolders.h"
#include "tests/support/SvgDecoding.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <vector>

namespace {

namespace fs = std::filesystem;

const fs::path kFolder = fs::path(ZAM_SOURCE_DIR) / "tests/golden";

std::vector<std::string> Documents() {
    std::vector<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(kFolder)) {
        if (entry.path().extension() == ".svg") {
            names.push_back(fs::relative(entry.path(), kFolder).string());
        }
    }
    std::ranges::sort(names);
    return names;
}

std::string ReadFile(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

std::string FirstDifference(const std::string& actual, const std::string& expected) {
    std::istringstream actualLines(actual);
    std::istringstream expectedLines(expected);
    for (int number = 1;; ++number) {
        std::string actualLine = "(end)";
        std::string expectedLine = "(end)";
        const bool more = static_cast<bool>(std::getline(actualLines, actualLine));
        if (std::getline(expectedLines, expectedLine).fail() && !more) {
            return "only the last line's end";
        }
        if (actualLine != expectedLine) {
            std::string difference = "line " + std::to_string(number);
            return difference.append("\n is        ").append(actualLine).append("\n should be ").append(expectedLine);
        }
    }
}

class Golden : public testing::TestWithParam<std::string> {};

TEST_P(Golden, Model) {
    const fs::path document = kFolder / GetParam();
    const fs::path golden = fs::path(document).replace_extension(".json");
    const std::string json = DecodeToJson(ReadFile(document));
    if (const char* const regenerate = std::getenv("ZAM_REGENERATE"); regenerate != nullptr && regenerate[0] == '1') {
        std::ofstream(golden, std::ios::binary) << json;
        return;
    }
    const std::string expected = ReadFile(golden);
    ASSERT_FALSE(expected.empty()) << golden << " is missing";
    EXPECT_TRUE(json == expected) << GetParam() << ": " << FirstDifference(json, expected);
}

INSTANTIATE_TEST_SUITE_P(Documents, Golden, testing::ValuesIn(Documents()), [](const auto& tested) {
    std::string name = tested.param;
    std::ranges::replace_if(
        name, [](char c) { return std::isalnum(static_cast<unsigned char>(c)) == 0; }, '_');
    return name;
});

// Bodies of a document of 200 by 100 that give the same model.
TEST(SameAs, Bodies) {
    const char* const pairs[][2] = {
        {"<rect fill='red' stroke='blue' stroke-width='2mm' stroke-linecap='round' stroke-linejoin='bevel'/>",
         "<rect style='fill:red;stroke:blue;stroke-width:2mm;stroke-linecap:round;stroke-linejoin:bevel'/>"},
        {"<rect opacity='.5' stroke-opacity='.3' fill-opacity='.7' stroke-dasharray='1,2'/>",
         "<rect style='opacity:.5;stroke-opacity:.3;fill-opacity:.7;stroke-dasharray:1 2'/>"},
        {"<g color='red'><rect stroke='currentColor' fill='none'/></g>",
         "<g style='color:red'><rect style='stroke:currentColor;fill:none'/></g>"},
        {"<G><RECT Fill='red' fill='Red' stroke='CURRENTCOLOR' stroke-linecap='ROUND'/></G>",
         "<g><rect fill='red' stroke='currentColor' stroke-linecap='round'/></g>"},
        {"<rect fill='NONE' visibility='Visible'/>", "<rect visibility='visible' fill='none'/>"},
        {"<rect style='FILL:RED;Fill-Rule:EvenOdd'/>", "<rect style='fill:red;fill-rule:evenodd'/>"},
        {"<rect style=' fill : red ; stroke : blue ; '/>", "<rect style='fill:red;stroke:blue'/>"},
        {"<rect fill='r e d' stroke=' blue '/>", "<rect fill='red' stroke='blue'/>"},
        {"<rect fill='#f00' stroke='rgb(0,0,255)'/>", "<rect fill='red' stroke='blue'/>"},
        {"<rect fill='#FF0000' stroke='rgb( 0%, 0%, 100%)'/>", "<rect fill='rgb(511,256,0)' stroke='(0,0,255)'/>"},
        {"<rect x='1in' y='10mm' width='50%' height='50%'/>",
         "<rect x='89.9999978' y='35.43307' width='100' height='50'/>"},
        {"<rect width='10px' height='20 30'/>", "<rect width='10' height='20'/>"},
        {"<rect rx='5' ry='6' width='9' height='9'/>", "<rect width='9' height='9'/>"},
        {"<polygon points='0,0 10,0 10,10'/>", "<polygon points=' 0 0,10   0 10 10 11'/>"},
        {"<path d='M1,2L3-4h5'/>", "<path d='M 1 2 L 3 -4 8 -4' pathLength='3'/>"},
        {"<path d='m1 2 3 4z'/>", "<path d='M1 2L4 6Z'/>"},
        {"<path d='M0 0c1 1 2 2 3 3 1 1 2 2 3 3z'/>", "<path d='M0 0C1 1 2 2 3 3 4 4 5 5 6 6Z'/>"},
        {"<path d='M10\n10\tL20 20 30 0'/>", "<path d='M10 10L20 20L30 0'/>"},
        {"<g transform='translate(10,20)scale(2)'/>", "<g transform='translate(10 20), scale(2,2)'/>"},
        {"<g transform='Scale(2)'/>", "<g transform='scale(2)'/>"},
        {"<rect>text<!-- comment --><unknown><rect/></unknown><rect/></rect>", "<rect/>"},
        {"<x:rect xmlns:x='u'/><linearGradient/><switch><rect/></switch><circle/>", "<circle/>"},
        {"<line fill='none' stroke='red' x2='5'/>", "<line visibility='hidden' stroke='red' x2='5'/>"},
    };
    for (const auto& [left, right] : pairs) {
        const auto decode = [](const char* body) {
            return DecodeToJson("<svg width='200' height='100'>" + std::string(body) + "</svg>");
        };
        const std::string leftJson = decode(left);
        EXPECT_TRUE(leftJson == decode(right)) << left << "\nand " << right << "\n"
                                               << FirstDifference(leftJson, decode(right));
    }
}

} // namespace
