// SPDX-License-Identifier: MIT
#include "framework/base/ZAMFileAccessPolicy.h"
#include "prepress/ZAMPrepress.h"
#include "tests/prepress/Documents.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace {

class PictureFiles : public testing::Test {
protected:
    void SetUp() override {
        _Folder = std::filesystem::path(testing::TempDir()) / "picture-files";
        std::filesystem::create_directories(_Folder);
        // A header of 2 x 1 pixels.
        const std::string bitmap =
            std::string("BM") + std::string(12, '\0') + '\x0C' + std::string(3, '\0') + '\x02' + '\0' + '\x01' + '\0';
        Write("wide.bmp", bitmap);
        Write("w i.bmp", bitmap);
        Write("drawing.svg",
              "<svg width='4' height='2'><rect width='4' height='2'/><image xlink:href='wide.bmp'/></svg>");
    }
    void TearDown() override { std::filesystem::remove_all(_Folder); }

    [[nodiscard]] std::string Prepared(const std::string& body) const {
        const auto root = ParseDocument("<svg width='9' height='9'>" + body + "</svg>");
        return ToXml(ZAMPrepress::Prepare(root, nullptr, (_Folder / "document.svg").string()));
    }

private:
    void Write(const char* name, const std::string& bytes) const {
        std::ofstream(_Folder / name, std::ios::binary) << bytes;
    }

    std::filesystem::path _Folder;
};

TEST_F(PictureFiles, KeepTheirAspect) {
    const std::string image = "<image width='6' height='6' xlink:href='wide.bmp'/>";
    EXPECT_EQ(Prepared(image), "<svg width=\"9\" height=\"9\">\n"
                               "  <image width=\"6\" height=\"3\" xlink:href=\"wide.bmp\" x=\"0\" y=\"1.5\"/>\n"
                               "</svg>\n");
    EXPECT_EQ(Prepared("<image width='6' height='6' xlink:href='w%20i.bmp'/>"),
              "<svg width=\"9\" height=\"9\">\n"
              "  <image width=\"6\" height=\"3\" xlink:href=\"w i.bmp\" x=\"0\" y=\"1.5\"/>\n"
              "</svg>\n");
    const auto policy = ZAMFileAccessPolicy::None();
    EXPECT_EQ(Prepared(image), "<svg width=\"9\" height=\"9\">\n"
                               "  <image width=\"6\" height=\"6\" xlink:href=\"wide.bmp\"/>\n"
                               "</svg>\n");
}

// What they name themselves is not looked for.
TEST_F(PictureFiles, MayBeDocuments) {
    EXPECT_EQ(Prepared("<image width='8' height='4' preserveAspectRatio='none' xlink:href='drawing.svg'/>"),
              "<svg width=\"9\" height=\"9\">\n"
              "  <g>\n"
              "    <g>\n"
              "      <g transform=\"matrix(2 0 0 2 0 0)\">\n"
              "        <symbol id=\"clip-1\" viewBox=\"0 0 4 2\">\n"
              "          <rect width=\"4\" height=\"2\"/>\n"
              "          <image xlink:href=\"\"/>\n"
              "        </symbol>\n"
              "        <use xlink:href=\"#clip-1\" transform=\"translate(0 0)\"/>\n"
              "      </g>\n"
              "    </g>\n"
              "  </g>\n"
              "</svg>\n");
}

} // namespace
