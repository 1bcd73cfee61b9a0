// SPDX-License-Identifier: MIT
#include "tests/tools/ToolTest.h"

#include <nlohmann/json.hpp>

namespace {

// A picture of 2 x 1 pixels, red and blue.
constexpr const char* kBitmap = "Qk0+AAAAAAAAADYAAAAoAAAAAgAAAAEAAAABABgAAAAAAAgAAAAAAAAAAAAAAAAAAAAAAAAAAAD//wAAAAA=";

std::string DecodeBase64(const std::string& text) {
    constexpr std::string_view kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string bytes;
    unsigned bits = 0;
    int count = 0;
    for (const char c : text.substr(0, text.find('='))) {
        bits = bits << 6U | static_cast<unsigned>(kAlphabet.find(c));
        if ((count += 6) >= 8) {
            bytes += static_cast<char>(bits >> static_cast<unsigned>(count -= 8) & 0xFFU);
        }
    }
    return bytes;
}

} // namespace

class ReuseTest : public ToolTest {
protected:
    // For each reference whether the drawing got its picture.
    [[nodiscard]] std::vector<bool> Pictures(const Arguments& references, const Arguments& options = {}) const {
        std::string document = R"(<svg width="9" height="9">)";
        for (const std::string& reference : references) {
            document += "<image width=\"2\" height=\"1\" xlink:href=\"" + reference + "\"/>";
        }
        Write("inner/drawing.svg", document + "</svg>");
        Arguments arguments{"-f", "json", "inner/drawing.svg"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const RunResult run = Run(arguments);
        EXPECT_EQ(run.status, 0) << run.err;
        std::vector<bool> found;
        const auto model = nlohmann::json::parse(run.out);
        for (const auto& child : model["images"][0]["children"]) {
            found.push_back(!child["pixels"].is_null());
        }
        return found;
    }
};

TEST_F(ReuseTest, PictureFilesAreThoseOfTheDocumentsFolder) {
    const std::string bitmap = DecodeBase64(kBitmap);
    std::filesystem::create_directories("inner/below");
    std::filesystem::create_directories("inner-too");
    for (const char* file : {"outside.bmp", "inner/a.bmp", "inner/below/b.bmp", "inner-too/c.bmp"}) {
        Write(file, bitmap);
    }
    std::filesystem::create_symlink("../outside.bmp", "inner/leads-out.bmp");
    std::filesystem::create_symlink("below/b.bmp", "inner/stays-in.bmp");
    const std::string here = std::filesystem::current_path();
    const Arguments references = {"a.bmp",
                                  "below/b.bmp",
                                  "stays-in.bmp",
                                  "inner/a.bmp",
                                  here + "/inner/a.bmp",
                                  std::string("data:image/bmp;base64,") + kBitmap,
                                  "leads-out.bmp",
                                  "../outside.bmp",
                                  here + "/outside.bmp",
                                  "../inner-too/c.bmp",
                                  "below",
                                  "/dev/zero",
                                  "",
                                  "absent.bmp"};
    using Found = std::vector<bool>;
    const Found document{true, true, true, true, true, true, false, false, false, false, false, false, false, false};
    const Found all{true, true, true, true, true, true, true, true, true, true, false, false, false, false};
    const Found none{false, false, false, false, false, true, false, false, false, false, false, false, false, false};
    EXPECT_EQ(Pictures(references), document);
    EXPECT_EQ(Pictures(references, {"--allow-files", "all"}), all);
    EXPECT_EQ(Pictures(references, {"--allow-files", "none"}), none);
    const std::string drawing = Read("inner/drawing.svg");
    EXPECT_EQ(Run({"-f", "json"}, drawing).out, Run({"-f", "json", "--allow-files", "none"}, drawing).out);
    EXPECT_EQ(Run({"--allow-files", "some"}, drawing).status, 2);
}

// The tiles of patterns are drawn while the document is prepared.
TEST_F(ReuseTest, PatternsSeeTheSameFiles) {
    std::filesystem::create_directories("inner");
    Write("outside.bmp", DecodeBase64(kBitmap));
    const auto pixels = [&](const std::string& file) {
        Write("inner/drawing.svg",
              "<svg width='9' height='9'><pattern id='p' width='4' height='4' patternUnits='userSpaceOnUse'>"
              "<rect width='1' height='1'/><image width='4' height='4' preserveAspectRatio='none' xlink:href='" +
                  file + "'/></pattern><rect width='9' height='9' fill='url(#p)'/></svg>");
        const RunResult run = Run({"-f", "png", "inner/drawing.svg"});
        EXPECT_EQ(run.status, 0) << run.err;
        return run.out;
    };
    const std::string outside = pixels("../outside.bmp");
    EXPECT_EQ(outside, pixels("absent.bmp"));
    Write("inner/inside.bmp", DecodeBase64(kBitmap));
    EXPECT_NE(outside, pixels("inside.bmp"));
}

TEST_F(ReuseTest, TheSamePictureIsStoredOnceInThePdf) {
    std::string document = R"(<svg width="100" height="100"><defs><image id="p" width="2" height="1" xlink:href=")";
    document += std::string("data:image/bmp;base64,") + kBitmap + "\"/></defs>";
    for (int i = 0; i < 1000; ++i) {
        document +=
            "<use xlink:href=\"#p\" x=\"" + std::to_string(i % 50) + "\" y=\"" + std::to_string(i / 50) + "\"/>";
    }
    const RunResult run = Run({}, document + "</svg>");
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_TRUE(Contains(CheckPdf(run.out), "Pages:           1\n"));
    Write("many.pdf", run.out);
    EXPECT_EQ(Shell("pdfimages -list many.pdf | tail -n +3 | awk '{ print $11 }' | sort -u | wc -l").out, "1\n");
    EXPECT_LT(run.out.size(), 200000U);
}

TEST_F(ReuseTest, ADocumentThatDoublesItselfIsAnError) {
    std::string document = R"(<svg width="9" height="9"><defs><rect id="d0" width="1" height="1"/></defs>)";
    for (int i = 1; i <= 50; ++i) {
        const std::string use = "<use xlink:href=\"#d" + std::to_string(i - 1) + "\"/>";
        document += "<defs><g id=\"d" + std::to_string(i) + "\">";
        document += use;
        document += use;
        document += "</g></defs>";
    }
    document += "<use xlink:href=\"#d50\"/></svg>";
    const RunResult run = Run({"-o", "out.pdf"}, document);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "zamprint: standard input: reuses too many elements; --max-elements N allows more\n");
    EXPECT_LT(run.seconds, 10.0);
    EXPECT_EQ(List(), Arguments{});
    const std::string reused = R"(<svg width="9" height="9"><defs><rect id="r" width="1" height="1"/></defs>)"
                               R"(<use xlink:href="#r" fill="red"/></svg>)";
    EXPECT_EQ(Run({"--max-elements", "0", "-f", "json"}, reused).status, 0);
}
