// SPDX-License-Identifier: MIT
#include "prepress/document/ZAMPrepressIds.h"
#include "prepress/geometry/ZAMPrepressLength.h"
#include "prepress/geometry/ZAMPrepressTransform.h"
#include "prepress/paint/ZAMPrepressBase64.h"
#include "prepress/paint/ZAMPrepressPng.h"
#include "prepress/ZAMPrepress.h"
#include "tests/prepress/Documents.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <vector>

namespace {

// Keeps the drawings that it is given.
class Recorder : public ZAMPrepressTileRenderer {
public:
    std::string Render(const ZAMLightXmlElement& drawing) override {
        drawings.push_back(ToXml(drawing));
        return fails ? std::string()
                     : ZAMPrepressWritePng({1, 1, {0xFF000000U + static_cast<unsigned>(drawings.size())}});
    }

    std::vector<std::string> drawings;
    bool fails = false;
};

class Patterns : public testing::Test {
protected:
    void Prepare(const std::string& content, bool withRenderer = true) {
        const auto root = ParseDocument("<svg width=\"400\" height=\"200\">" + content + "</svg>");
        _Tree = std::make_unique<ZAMPrepressTree>(ZAMPrepress::Prepare(root, withRenderer ? &_Recorder : nullptr));
        _Ids = std::make_unique<ZAMPrepressIds>(*_Tree);
    }
    ZAMPrepressElement& Find(std::string_view id) { return *_Ids->Find(id); }
    ZAMPrepressElement& GetTile(std::string_view id) { return *_Ids->FindUrl(Find(id).Get("fill")); }
    std::string GetTileBox(std::string_view id) {
        std::string box;
        for (const char* attribute : {"x", "y", "width", "height"}) {
            box += (box.empty() ? "" : " ") + std::string(GetTile(id).Get(attribute));
        }
        return box;
    }

    Recorder _Recorder;
    std::unique_ptr<ZAMPrepressTree> _Tree;
    std::unique_ptr<ZAMPrepressIds> _Ids;
};

constexpr const char* kDot = R"svg(<circle cx="5" cy="5" r="4" fill="#ff0000"/>)svg";
constexpr const char* kLeaf = R"svg(<rect id="a" x="100" y="50" width="200" height="100" fill="url(#p)"/>)svg";

TEST_F(Patterns, TilesLieWhereTheyShould) {
    struct Row {
        const char* attributes;
        const char* box;     // of the tile
        const char* content; // the transform of what is drawn, before it is brought to pixels
        double xPixels;
    };
    constexpr double kUnit = 600.0 / 90.0;
    const Row rows[] = {
        {R"svg(patternUnits="userSpaceOnUse" x="3" y="4" width="15" height="30")svg", "3 4 15 30", "scale(1)",
         15 * kUnit},
        {R"(x="0.5" y="0.1" width="0.15" height="0.3")", "200 60 30 30", "scale(1)", 30 * kUnit},
        {R"(x="50%" width="15%" height="30%")", "200 50 30 30", "scale(1)", 30 * kUnit},
        {R"svg(width="0.15" height="0.3" patternContentUnits="objectBoundingBox")svg", "100 50 30 30", "scale(200 100)",
         30 * kUnit},
        {R"svg(width="0.15" height="0.3" viewBox="-5 -5 10 20")svg", "100 50 30 30", "matrix(1.5 0 0 1.5 15 7.5)",
         30 * kUnit},
        {R"svg(width="0.15" height="0.3" viewBox="0 0 10 20" preserveAspectRatio="none")svg", "100 50 30 30",
         "scale(3 1.5)", 30 * kUnit},
        {R"svg(patternUnits="userSpaceOnUse" width="15" height="30" patternTransform="translate(7 8) scale(2)")svg",
         "7 8 30 60", "scale(1)", 30 * kUnit},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.attributes);
        _Recorder.drawings.clear();
        Prepare("<pattern id=\"p\" " + std::string(row.attributes) + ">" + kDot + "</pattern>" + kLeaf);
        EXPECT_EQ(GetTileBox("a"), row.box);
        ASSERT_EQ(_Recorder.drawings.size(), 1U);
        ZAMPrepressTree drawing(ParseDocument(_Recorder.drawings.front()));
        const ZAMPrepressElement& root = drawing.GetRoot();
        const auto group = std::ranges::find(root.children, "g", &ZAMPrepressElement::name);
        ASSERT_NE(group, root.children.end());
        EXPECT_EQ(root.Get("width"), std::to_string(static_cast<int>(row.xPixels)));
        const auto map = *ZAMPrepressReadTransform((*group)->Get("transform"));
        const auto content = *ZAMPrepressReadTransform(row.content);
        const double tileWidth = ZAMPrepressNumberOr(GetTile("a"), "width", 0.0);
        const double scale = std::string_view(row.attributes).find("scale") == std::string_view::npos
                                 ? row.xPixels / tileWidth
                                 : 2.0 * row.xPixels / tileWidth;
        EXPECT_NEAR(map.a, content.a * scale, 1e-6);
        EXPECT_NEAR(map.d, content.d * scale, 1e-6);
        EXPECT_NEAR(map.e, content.e * scale, 1e-6);
        EXPECT_NEAR(map.f, content.f * scale, 1e-6);
    }
}

TEST_F(Patterns, TurnedOnesTurnTheLeaf) {
    Prepare(std::string("<pattern id=\"p\" patternUnits=\"userSpaceOnUse\" x=\"5\" width=\"10\" height=\"10\" "
                        "patternTransform=\"rotate(90)\">") +
            kDot + "</pattern>" + kLeaf);
    EXPECT_EQ(GetTileBox("a"), "0 0 10 10");
    const auto map = *ZAMPrepressReadTransform(Find("a").Get("transform"));
    EXPECT_NEAR(map.b, 1.0, 1e-9);
    EXPECT_NEAR(map.f, 5.0, 1e-9); // 5 to the right, turned
    EXPECT_TRUE(Find("a").Is("path"));
}

TEST_F(Patterns, EachTileIsDrawnOnceWithWhatItNeeds) {
    Prepare(R"svg(<pattern id="p" width="40" height="40" patternUnits="userSpaceOnUse">
                      <rect width="30" height="30" fill="url(#q)"/><rect width="9" height="9" fill="url(#g)"/></pattern>
                  <pattern id="q" width="7" height="7" patternUnits="userSpaceOnUse"><rect width="3" height="3"/></pattern>
                  <linearGradient id="g"><stop/><stop offset="1" stop-color="#ff0000"/></linearGradient>
                  <rect id="b" width="9" height="9" fill="url(#p)"/>)svg" +
            std::string(kLeaf));
    EXPECT_EQ(Find("a").Get("fill"), Find("b").Get("fill"));
    ASSERT_EQ(_Recorder.drawings.size(), 2U);
    EXPECT_EQ(_Recorder.drawings[0].find("<image"), std::string::npos);
    for (const char* used : {"url(#tile-1)", "\"tile-1\"", "url(#tile-2)", "\"tile-2\""}) {
        EXPECT_NE(_Recorder.drawings[1].find(used), std::string::npos) << used;
    }
}

TEST_F(Patterns, NothingIsDrawnOfSome) {
    const char* const patterns[] = {
        R"svg(<pattern id="p" width="0.1" height="0"><rect width="5" height="5"/></pattern>)svg",
        R"svg(<pattern id="p" width="-0.1" height="0.1"><rect width="5" height="5"/></pattern>)svg",
        R"svg(<pattern id="p" width="0.1" height="0.1"/>)svg",
        R"svg(<pattern id="p" width="0.1" height="0.1" viewBox="0 0 0 5"><rect width="5" height="5"/></pattern>)svg",
        R"svg(<pattern id="p" width="0.1" height="0.1" patternTransform="scale(0)"><rect width="5" height="5"/></pattern>)svg",
        R"svg(<pattern id="p" xlink:href="#q"/><pattern id="q" xlink:href="#p"/>)svg",
    };
    for (const char* pattern : patterns) {
        Prepare(pattern + std::string(kLeaf));
        EXPECT_EQ(Find("a").Get("fill"), "none") << pattern;
        EXPECT_TRUE(_Recorder.drawings.empty()) << pattern;
    }
}

TEST_F(Patterns, AFallbackIsForPatternsWithoutAnArea) {
    Prepare(R"svg(<pattern id="p" height="1"><rect width="5" height="5"/></pattern>
                  <pattern id="q" width="1" height="1"><rect width="5" height="5"/></pattern>
                  <rect id="a" width="9" height="9" fill="url(#p) lime" stroke="url(#p) blue"/>
                  <rect id="b" width="9" height="9" fill="url(#q) lime"/>)svg");
    EXPECT_EQ(Find("a").Get("fill"), "#00ff00");
    EXPECT_EQ(Find("a").Get("stroke"), "#0000ff");
    EXPECT_EQ(Find("b").Get("fill"), "url(#tile-1)");
}

TEST_F(Patterns, TilesOfExtremeSizesAreWhatIsSeenOfThem) {
    Prepare(
        R"svg(<pattern id="p" patternUnits="userSpaceOnUse" x="-5" width="1e6" height="1e-6"><circle r="5"/></pattern>)svg" +
        std::string(kLeaf));
    const double x = ZAMPrepressNumberOr(GetTile("a"), "x", NAN);
    const double width = ZAMPrepressNumberOr(GetTile("a"), "width", NAN);
    EXPECT_TRUE(x < 100.0 && x > 90.0) << x;
    EXPECT_TRUE(x + width > 300.0 && x + width < 310.0) << width;
    EXPECT_EQ(GetTile("a").Get("height"), "0.15") << "a pixel";
    ZAMPrepressTree drawing(ParseDocument(_Recorder.drawings.front()));
    EXPECT_EQ(drawing.GetRoot().Get("height"), "1");
    const auto& parts = drawing.GetRoot().children;
    const auto group = std::ranges::find(parts, "g", &ZAMPrepressElement::name);
    ASSERT_NE(group, parts.end());
    const auto map = ZAMPrepressReadTransform((*group)->Get("transform"));
    EXPECT_NEAR(map->e + map->a * (x + 5.0), 0.0, 1e-3);
}

TEST_F(Patterns, OnesWithinThemselvesEnd) {
    Prepare(R"svg(<pattern id="p" width="0.1" height="0.1"><rect width="5" height="5" fill="url(#q)"/></pattern>
                  <pattern id="q" width="0.1" height="0.1"><rect width="5" height="5" fill="url(#p)" stroke="#ff0000"/></pattern>)svg" +
            std::string(kLeaf));
    EXPECT_EQ(_Recorder.drawings.size(), 2U);
    EXPECT_NE(Find("a").Get("fill"), "none");
    EXPECT_NE(_Recorder.drawings.front().find("fill=\"none\""), std::string::npos);
}

TEST_F(Patterns, WithoutATileThereIsTheMeanColour) {
    const std::string document = R"svg(<pattern id="p" width="10" height="10" patternUnits="userSpaceOnUse">
        <rect width="5" height="8" fill="#ff0000"/><path d="M0 0H10" stroke="#0000ff" fill="none"/></pattern>
        <rect id="b" width="9" height="9" fill="none" stroke="url(#p)"/>)svg" +
                                 std::string(kLeaf);
    Prepare(document, false);
    EXPECT_EQ(Find("a").Get("fill"), "#cc0033");
    EXPECT_EQ(Find("a").Get("fill-opacity"), "0.5");
    EXPECT_EQ(Find("b").Get("fill"), "#cc0033") << "the stroke is a shape";
    _Recorder.fails = true;
    Prepare(document);
    EXPECT_EQ(Find("a").Get("fill"), "#cc0033");
}

TEST_F(Patterns, BitmapsThatFillTheirTilesStayAndStandInFront) {
    std::string data = "data:image/png;base64,";
    ZAMPrepressAddBase64(ZAMPrepressWritePng({2, 1, {0xFF000000, 0xFFFFFFFF}}), data);
    Prepare(std::string(kLeaf) + R"svg(<pattern id="p" x="3" width="20" height="10" patternUnits="userSpaceOnUse">
        <image width="20" height="10" xlink:href=")svg" +
            data + "\"/></pattern>");
    EXPECT_TRUE(_Recorder.drawings.empty());
    ASSERT_EQ(Find("a").Get("fill"), "url(#p)");
    EXPECT_EQ(GetTileBox("a"), "3  20 10");
    EXPECT_EQ(Find("p").parent, _Tree->GetRoot().children.front());
}

} // namespace
