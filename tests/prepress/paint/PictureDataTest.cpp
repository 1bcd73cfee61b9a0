// SPDX-License-Identifier: MIT
#include "prepress/paint/ZAMPrepressDataReference.h"
#include "prepress/paint/ZAMPrepressPictureHeader.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using namespace std::string_literals;
using Format = ZAMPrepressPictureHeader::Format;

TEST(PrepressPictures, DataReferences) {
    struct Row {
        const char* link;
        std::optional<std::string> bytes;
    };
    const Row rows[] = {
        {"data:image/png;base64,TWFu", "Man"},
        {"data:image/png;base64,TWE=", "Ma"},
        {"data:image/png;base64,TWE", "Ma"},
        {"data:image/png;base64,TQ==TWFu", "M"},
        {"DATA:;charset=x ;BASE64 , TW\nFu\t", "Man"},
        {"data:;base64,TW%46u%3D", "Man"},
        {"data:;base64,-_+/", "\xFB\xFF\xBF"},
        {"  data:image/svg+xml;utf8,%3Csvg a='1%'/>%3", "<svg a='1%'/>%3"},
        {"data:,a,b%00%fF", "a,b\0\xFF"s},
        {"data:base64,TWFu", "Man"},
        {"data:image/png;base64", std::nullopt},
        {"file.png", std::nullopt},
        {"", std::nullopt},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(ZAMPrepressReadDataReference(row.link), row.bytes) << row.link;
    }
}

TEST(PrepressPictures, Headers) {
    struct Row {
        std::string bytes;
        Format format;
        double width;
        double height;
    };
    const std::string png = "\x89PNG\r\n\x1A\n\0\0\0\x0DIHDR\0\0\1\2\0\0\0\3"s;
    const std::string jpeg = "\xFF\xD8\xFF\xE0\0\4xx\xFF\xFF\xC4\0\3x\xFF\xC2\0\x11\x08\0\x20\1\0\3\0\0"s;
    const std::string bmp = "BM" + std::string(12, '\0') + "\x28\0\0\0\x10\0\0\0\xF0\xFF\xFF\xFF"s;
    const std::string oldBmp = "BM" + std::string(12, '\0') + "\x0C\0\0\0\x10\0\x20\0"s;
    const Row rows[] = {
        {png, Format::Png, 258.0, 3.0},
        {png.substr(0, 8), Format::Png, 0.0, 0.0},
        {jpeg, Format::Jpeg, 256.0, 32.0},
        {jpeg.substr(0, 12), Format::Jpeg, 0.0, 0.0},
        {"\xFF\xD8\xFF\xE0\0\0"s + std::string(100, '\0'), Format::Jpeg, 0.0, 0.0},
        {bmp, Format::Bmp, 16.0, 16.0},
        {oldBmp, Format::Bmp, 16.0, 32.0},
        {"\xEF\xBB\xBF <?xml?><svg/>", Format::Svg, 0.0, 0.0},
        {"<html/>", Format::Unknown, 0.0, 0.0},
        {"GIF89a", Format::Unknown, 0.0, 0.0},
        {"", Format::Unknown, 0.0, 0.0},
    };
    for (const Row& row : rows) {
        const auto header = ZAMPrepressPictureHeader::Read(row.bytes);
        EXPECT_EQ(header.format, row.format) << testing::PrintToString(row.bytes);
        EXPECT_EQ(header.width, row.width) << testing::PrintToString(row.bytes);
        EXPECT_EQ(header.height, row.height) << testing::PrintToString(row.bytes);
    }
}

} // namespace
