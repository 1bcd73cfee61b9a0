// SPDX-License-Identifier: MIT
#include "framework/visualisation/ZAMTextLayout.h"
#include "tests/support/FontFolders.h"
#include "tests/support/SvgDecoding.h"
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVG2Interpreter.h"
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVGGetDocumentSize.h"
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVGInterpreter.h"

#include <gtest/gtest.h>
#include <sstream>
#include <vector>

namespace {

const std::string kDocument = "<svg width='30' height='20'><rect width='3' height='2'/></svg>";

class CountingGenerator : public ZAMPrintGenerator {
public:
    int BeginDocument(const ZAMPrintParameters& /*parameters*/) override { return ++_Documents, 1; }
    int BeginPage(double /*width*/, double /*height*/) override { return ++_Pages, 1; }
    int EndPage() override { return 1; }
    int EndDocument() override { return _Result; }
    void PushClip(const ZAMMathBox2D& /*area*/, const ZAMMathAffine2D& /*toPage*/) override {}
    void PopClip() override {}
    void AddLink(const ZAMMathBox2D& /*area*/, std::string_view /*address*/) override {}
    void AddInternalLink(const ZAMMathBox2D& /*area*/, std::string_view /*destination*/) override {}
    void AddDestination(std::string_view /*name*/, const ZAMMathPoint2D& /*place*/) override {}
    void DrawPath(const ZAMPrintPath& /*path*/, const ZAMMathAffine2D& /*toPage*/, const ZAMPrintFill* /*fill*/,
                  const ZAMPrintPen* /*pen*/) override {
        ++_Paths;
    }
    void DrawText(const ZAMTextLayout& /*layout*/, const ZAMMathAffine2D& /*toPage*/, const ZAMPrintFill* /*fill*/,
                  const ZAMPrintPen* /*pen*/) override {}
    void DrawImage(const ZAMRef<ZAMPixelImage>& /*image*/, const ZAMMathAffine2D& /*toPage*/) override {}
    [[nodiscard]] std::string GetError() const override { return ""; }

    int _Result = 1;
    int _Documents = 0;
    int _Pages = 0;
    int _Paths = 0;
};

// A stream that can only be read onwards, a few bytes at a time.
class Pipe : public std::streambuf {
public:
    explicit Pipe(std::string text) : _Text(std::move(text)) {}

protected:
    int_type underflow() override {
        if (_Read == _Text.size()) {
            return traits_type::eof();
        }
        const std::size_t count = std::min<std::size_t>(7, _Text.size() - _Read);
        setg(_Text.data() + _Read, _Text.data() + _Read, _Text.data() + _Read + count);
        _Read += count;
        return traits_type::to_int_type(*gptr());
    }

private:
    std::string _Text;
    std::size_t _Read = 0;
};

// The result of a decode and the sizes of the images that it made.
std::string Decode(ZAMPrintSVG2Interpreter& decoder) {
    const auto model = ZAMNew<ZAMPrtModel>();
    ZAMPrintSVGModelDriver driver(model.Get());
    std::string text = std::to_string(decoder.Decode(&driver));
    for (const auto& image : model->GetImages()) {
        text += " " + std::to_string(static_cast<int>(image->GetSize().x)) + "x" +
                std::to_string(static_cast<int>(image->GetSize().y));
    }
    return text;
}
std::string Decode(std::istream* stream) {
    ZAMPrintSVG2Interpreter decoder(stream);
    return Decode(decoder);
}
std::string Decode(const std::string& document) {
    std::istringstream stream(document);
    return Decode(&stream);
}

TEST(Decoder, Streams) {
    EXPECT_EQ(Decode(static_cast<std::istream*>(nullptr)), "-1");
    EXPECT_EQ(Decode(std::string()), "-1");

    for (const auto state : {std::ios::failbit, std::ios::badbit}) {
        std::istringstream failed(kDocument);
        failed.setstate(state);
        EXPECT_EQ(Decode(&failed), "-1");
        EXPECT_EQ(failed.rdstate(), state); // not touched
    }
    std::istringstream stream(kDocument);
    EXPECT_EQ(Decode(&stream), "1 30x20");
    EXPECT_TRUE(stream.good());
    EXPECT_EQ(stream.tellg(), 0);
    EXPECT_EQ(Decode(&stream), "1 30x20"); // it was left rewound

    std::istringstream atEnd(kDocument);
    atEnd.seekg(0, std::ios::end);
    EXPECT_EQ(Decode(&atEnd), "-1"); // nothing is left to count
    atEnd.seekg(0);
    atEnd.setstate(std::ios::eofbit);
    EXPECT_EQ(Decode(&atEnd), "-1");
    EXPECT_TRUE(atEnd.good());
    EXPECT_EQ(atEnd.tellg(), 0);

    Pipe pipe(kDocument + std::string(100000, '\n'));
    std::istream piped(&pipe);
    EXPECT_EQ(Decode(&piped), "1 30x20");
}

// As many bytes as stand behind the stream's position, but taken from its beginning: the end is missing.
TEST(Decoder, StreamInTheMiddle) {
    const std::string document = "<x><svg width='1'/><svg width='2'/></x>";
    std::istringstream stream(document);
    stream.seekg(20); // all but the last 20 bytes remain: "…<svg width='2'/></x>" is cut off
    EXPECT_EQ(Decode(&stream), "1 1x0");
    EXPECT_EQ(stream.tellg(), 0);
}

TEST(Decoder, RootsAndErrors) {
    const char* const rows[][2] = {
        {"<svg width='1'/>", "1 1x0"},
        {"<SVG width='1'/>", "1 1x0"},
        {"<html><svg width='1'/><p/><Svg width='2'/><svg width='3'><svg width='4'/></svg></html>", "1 1x0 2x0 3x0"},
        {"<html><body><svg width='1'/></body></html>", "1"},
        {"<x:svg xmlns:x='u' width='1'/>", "1"},
        {"<nothing/>", "1"},
        {"nonsense", "1"},
        {" ", "1"},
        {"<svg width='1'><rect", "1 1x0"},
        {"<html><svg width='1'/><svg width='2'><g></svg></html>", "1 1x0 2x0"},
    };
    for (const auto& [document, expected] : rows) {
        EXPECT_EQ(Decode(std::string(document)), expected) << document;
    }
    EXPECT_EQ(DecodeToJson("<svg><rect/><circle/><g><line/></x>"),
              DecodeToJson("<svg><rect/><circle/><g><line/></g></svg>"));
}

TEST(Decoder, SizeOfADocumentOfText) {
    const ZAMLightXmlElement root = ParseDocument("<svg><text x='10' y='20' font-size='40'>Size</text></svg>");
    ZAMPrintSVG2Interpreter decoder(&root);
    const auto model = ZAMNew<ZAMPrtModel>();
    ZAMPrintSVGModelDriver driver(model.Get());
    ASSERT_EQ(decoder.Decode(&driver), 1);
    const ZAMMathBox2D extents = ZAMTextLayout("Size", {.height = 40}).GetExtents();
    ASSERT_GT(extents.xMax, 40);
    const ZAMPrtImageElt& image = *model->GetImages()[0];
    EXPECT_NEAR(image.GetOrigin().x, 10 + extents.xMin, 1e-9);
    EXPECT_NEAR(image.GetOrigin().y, -20 + extents.yMin, 1e-9);
    EXPECT_NEAR(image.GetSize().x, extents.xMax - extents.xMin, 1e-9);
    EXPECT_NEAR(image.GetSize().y, extents.yMax - extents.yMin, 1e-9);
}

TEST(Decoder, ElementsAndDrivers) {
    const ZAMLightXmlElement root = ParseDocument(kDocument);
    ZAMPrintSVG2Interpreter decoder(&root);
    ZAMUnicodeString path("folder/drawing.svg");
    EXPECT_EQ(decoder.SetCurrentPath(path), 1);
    EXPECT_EQ(Decode(decoder), "1 30x20");
    EXPECT_EQ(Decode(decoder), "1 30x20");

    EXPECT_EQ(decoder.Decode(nullptr), -1);
    ZAMPrintSVGModelDriver without(nullptr);
    EXPECT_EQ(decoder.Decode(&without), -1);
    ZAMPrintSVG2Interpreter empty(static_cast<const ZAMLightXmlElementItf*>(nullptr));
    EXPECT_EQ(Decode(empty), "-1");

    const auto model = ZAMNew<ZAMPrtModel>();
    ZAMPrintSVGModelDriver driver(model.Get());
    EXPECT_EQ(driver.GetModel(), model.Get());
    EXPECT_EQ(decoder.Decode(&driver), 1);
    EXPECT_EQ(decoder.Decode(&driver), 1);
    EXPECT_EQ(model->GetImages().size(), 2U); // decoding twice adds twice
}

TEST(Decoder, Flips) {
    struct Row {
        const char* attributes;
        bool flipY;
        bool flipToOrigin;
        const char* origin;
        const char* corners;
        const char* points;
    };
    const Row rows[] = {
        {"height='100'", true, false, "[0, 0]", "[[1, 98], [4, 94]]", "[[1, 98], [3, 96]]"},
        // Points keep the flip of their own.
        {"height='100'", false, false, "[0, 0]", "[[1, 2], [4, 6]]", "[[1, 98], [3, 96]]"},
        {"height='100'", true, true, "[0, -100]", "[[1, -2], [4, -6]]", "[[1, -2], [3, -4]]"},
        {"viewBox='10 20 200 100'", true, false, "[10, -20]", "[[1, 98], [4, 94]]", "[[1, 98], [3, 96]]"},
        {"viewBox='10 20 200 100'", false, false, "[10, 20]", "[[1, 2], [4, 6]]", "[[1, 98], [3, 96]]"},
        {"viewBox='10 20 200 100'", true, true, "[10, -120]", "[[1, -2], [4, -6]]", "[[1, -2], [3, -4]]"},
    };
    for (const Row& row : rows) {
        const std::string document = std::string("<svg width='50' ") + row.attributes +
                                     "><rect x='1' y='2' width='3' height='4'/><polyline points='1 2 3 4'/></svg>";
        const std::string json = DecodeToJson(document, [&row](ZAMPrintSVG2Interpreter& decoder) {
            decoder._FlipYDefault = row.flipY;
            decoder._FlipToOriginDefault = row.flipToOrigin;
        });
        for (const std::string& expected :
             {std::string("\"origin\": ") + row.origin, std::string("\"corners\": ") + row.corners,
              std::string("\"points\": ") + row.points}) {
            EXPECT_NE(json.find(expected), std::string::npos) << expected << " in " << json;
        }
    }
}

TEST(Interpreter, SizeAndDrawing) {
    std::istringstream stream(kDocument);
    ZAMPrintSVGInterpreter interpreter(&stream);
    stream.str(""); // the document was copied
    EXPECT_EQ(interpreter.GetName(), "SVG");
    EXPECT_EQ(interpreter.SetCurrentPath("drawing.svg"), 1);
    CountingGenerator generator;
    EXPECT_EQ(interpreter.Decode(&generator, {}), 1);
    float width = 0.0F;
    float height = 0.0F;
    EXPECT_EQ(interpreter.GetSize(width, height), 1);
    EXPECT_EQ(width, 30.0F);
    EXPECT_EQ(height, 20.0F);
    EXPECT_EQ(interpreter.Decode(&generator, {}), 1);
    EXPECT_EQ(generator._Documents, 2);
    EXPECT_EQ(generator._Pages, 2); // the model is cached, not added to
    EXPECT_EQ(generator._Paths, 2);
    generator._Result = -1;
    EXPECT_EQ(interpreter.Decode(&generator, {}), -1);
    EXPECT_EQ(interpreter.Decode(nullptr, {}), -1);
}

TEST(Interpreter, ReadsTheDocumentOnce) {
    ZAMLightXmlElement root = ParseDocument(kDocument);
    ZAMPrintSVGInterpreter interpreter(&root);
    float width = 0.0F;
    float height = 0.0F;
    EXPECT_EQ(interpreter.GetSize(width, height), 1);
    root = ParseDocument("<svg width='7' height='7'/>");
    EXPECT_EQ(interpreter.GetSize(width, height), 1);
    EXPECT_EQ(width, 30.0F);
}

TEST(Interpreter, FailsOnceWithoutDocument) {
    ZAMPrintSVGInterpreter interpreter(static_cast<std::istream*>(nullptr));
    CountingGenerator generator;
    float width = 5.0F;
    float height = 6.0F;
    EXPECT_EQ(interpreter.Decode(&generator, {}), -1);
    EXPECT_EQ(interpreter.GetSize(width, height), 1); // the empty model is there now
    EXPECT_EQ(interpreter.Decode(&generator, {}), 1);
    EXPECT_EQ(generator._Pages, 0);
    EXPECT_EQ(width, 5.0F);
    EXPECT_EQ(height, 6.0F);
    ZAMPrintSVGInterpreter sized(static_cast<std::istream*>(nullptr));
    EXPECT_EQ(sized.GetSize(width, height), -1);
    EXPECT_EQ(sized.GetSize(width, height), 1);
    EXPECT_EQ(width, 5.0F);
}

TEST(Interpreter, SeveralPagesAndOriginAtBottom) {
    class AtBottom : public ZAMPrintSVGInterpreter {
    public:
        explicit AtBottom(const ZAMLightXmlElementItf* root) : ZAMPrintSVGInterpreter(root) { _OriginAtBottom = true; }
    };
    const ZAMLightXmlElement root = ParseDocument("<x><svg width='1' height='2'/><svg width='3' height='4'/></x>");
    AtBottom interpreter(&root);
    CountingGenerator generator;
    EXPECT_EQ(interpreter.Decode(&generator, {}), 1);
    EXPECT_EQ(generator._Pages, 2);
    EXPECT_EQ(generator._Documents, 1);
    float width = 0.0F;
    float height = 0.0F;
    EXPECT_EQ(interpreter.GetSize(width, height), 1);
    EXPECT_EQ(height, 2.0F); // of the first page
}

TEST(DocumentSize, FromWidthHeightAndViewBox) {
    struct Row {
        const char* attributes;
        int result;
        double width;
        double height;
    };
    const Row rows[] = {
        {"width='100' height='50'", 1, 100.0, 50.0},
        {"width='1in' height='10mm'", 1, 89.9999978, 35.43307},
        {"width='100' height='50' viewBox='0 0 1 1'", 1, 100.0, 50.0},
        {"width='100' viewBox='0 0 40 10'", 1, 100.0, 25.0},
        {"height='1cm' viewBox='5 5 40 10'", 1, 4 * 35.43307, 35.43307},
        {"width='100' height='50%' viewBox='0 0 40 10'", 1, 100.0, 25.0},
        {"width='-100' height='50' viewBox='0 0 40 10'", 1, 200.0, 50.0},
        {"width='nan' height='50' viewBox='0 0 40 10'", 1, 200.0, 50.0},
        {"width='100'", -1, 7.0, 8.0},
        {"viewBox='0 0 40 10'", -1, 7.0, 8.0},
        {"width='100%' height='100%' viewBox='0 0 40 10'", -1, 7.0, 8.0},
        {"width='100' viewBox='0,0,40,10'", -1, 7.0, 8.0},
        {"width='100' viewBox='0 0 40 0'", -1, 7.0, 8.0},
        {"width='1e300' viewBox='0 0 1 1e300'", -1, 7.0, 8.0},
        {"", -1, 7.0, 8.0},
    };
    for (const Row& row : rows) {
        double width = 7.0;
        double height = 8.0;
        const ZAMLightXmlElement root = ParseDocument(std::string("<svg ") + row.attributes + "/>");
        EXPECT_EQ(ZAMPrintSVGGetDocumentSize(root, width, height), row.result) << row.attributes;
        EXPECT_DOUBLE_EQ(width, row.width) << row.attributes;
        EXPECT_DOUBLE_EQ(height, row.height) << row.attributes;
    }
}

} // namespace
