// SPDX-License-Identifier: MIT
// What a leaf with a gradient shows at a place, told from the tile that it is filled with.
#include "prepress/document/ZAMPrepressIds.h"
#include "prepress/geometry/ZAMPrepressLength.h"
#include "prepress/paint/ZAMPrepressDataReference.h"
#include "prepress/paint/ZAMPrepressLeafSpace.h"
#include "prepress/paint/ZAMPrepressSolidPaint.h"
#include "tests/prepress/Documents.h"
#include "tests/prepress/paint/Png.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

// A document after the rewrite of paints, in which leaves have the ids that they had.
class Painted {
public:
    explicit Painted(std::string_view content)
        : _Tree(RewriteUpTo("paints",
                            ParseDocument("<svg width=\"400\" height=\"200\">" + std::string(content) + "</svg>"))),
          _Ids(_Tree) {}

    ZAMPrepressElement* Find(std::string_view id) const { return _Ids.Find(id); }

    // The element with the fill: the leaf, or the first child of the group that it has become.
    const ZAMPrepressElement& GetFilled(std::string_view id) const {
        const ZAMPrepressElement& leaf = *Find(id);
        return leaf.Is("g") ? *leaf.children.front() : leaf;
    }
    const ZAMPrepressElement* GetTile(std::string_view id) const { return _Ids.FindUrl(GetFilled(id).Get("fill")); }

    std::optional<ZAMPrepressPicture> GetPicture(std::string_view id) const {
        const ZAMPrepressElement* const tile = GetTile(id);
        if (tile == nullptr) {
            return std::nullopt;
        }
        const auto file = ZAMPrepressReadDataReference(tile->children.front()->Get("xlink:href"));
        return file ? DecodePng(*file) : std::nullopt;
    }

    // At a place in the units of the leaf as it was.
    std::uint32_t GetPixel(std::string_view id, const ZAMMathPoint2D& place) const {
        const ZAMPrepressElement& filled = GetFilled(id);
        const auto picture = GetPicture(id);
        if (!picture) {
            return ZAMPrepressPicture::ToPixel(ZAMPrepressReadSolid(filled, "fill"));
        }
        const auto transform = ZAMPrepressReadTransform(filled.Get("transform"));
        const ZAMMathPoint2D inside = ZAMPrepressInverse(*transform).Apply(place);
        const auto pixel = [&](double at, const char* corner, const char* side, std::size_t count) {
            const double start = ZAMPrepressNumberOr(*GetTile(id), corner, NAN);
            const double size = ZAMPrepressNumberOr(*GetTile(id), side, NAN);
            const double share = (at - start) / size;
            return static_cast<std::size_t>((share - std::floor(share)) * static_cast<double>(count));
        };
        return picture->pixels[pixel(inside.y, "y", "height", picture->height) * picture->width +
                               pixel(inside.x, "x", "width", picture->width)];
    }

private:
    ZAMPrepressTree _Tree;
    ZAMPrepressIds _Ids;
};

// No channel differs by more than the step from one pixel to the next may be.
bool IsNear(std::uint32_t one, std::uint32_t other) {
    for (const unsigned int shift : {24U, 16U, 8U, 0U}) {
        const int difference = static_cast<int>(one >> shift & 0xFFU) - static_cast<int>(other >> shift & 0xFFU);
        if (std::abs(difference) > 3) {
            return false;
        }
    }
    return true;
}

constexpr const char* kRect = R"svg(<rect id="a" x="100" y="50" width="200" height="100" fill="url(#g)"/>)svg";
constexpr const char* kStops =
    R"svg(<stop offset="0" stop-color="#ff0000"/><stop offset="1" stop-color="#0000ff"/>)svg";

struct GradientRow {
    const char* attributes; // the element's name and attributes
    ZAMMathPoint2D place;
    std::uint32_t pixel;
};

void ExpectPixels(std::span<const GradientRow> rows, const std::string& leaf) {
    for (const GradientRow& row : rows) {
        const std::string gradient = row.attributes;
        const std::string name = gradient.substr(0, gradient.find(' '));
        std::string document = "<" + gradient + " id=\"g\">";
        document.append(kStops).append("</").append(name).append(">").append(leaf);
        const Painted painted(document);
        const std::uint32_t pixel = painted.GetPixel("a", row.place);
        EXPECT_TRUE(IsNear(pixel, row.pixel)) << gradient << " at " << row.place.x << ", " << row.place.y << ": "
                                              << std::hex << pixel << " instead of " << row.pixel;
    }
}

// The colour whose share of blue is that of the offset.
std::uint32_t At(double offset) {
    const auto blue = static_cast<std::uint32_t>(std::lround(offset * 255.0));
    return 0xFF000000U | (255U - blue) << 16U | blue;
}

TEST(Paints, LinearGradientsLieWhereTheyShould) {
    const GradientRow rows[] = {
        {"linearGradient x=\"0\"", {150, 60}, At(0.25)},
        {"linearGradient x1=\"100%\" x2=\"0%\"", {150, 60}, At(0.75)},
        {"linearGradient x2=\"0\" y2=\"1\"", {150, 75}, At(0.25)},
        {"linearGradient x1=\"0.5\" x2=\"0.75\"", {225, 60}, At(0.5)},
        {"linearGradient x1=\"0.5\" x2=\"0.75\"", {120, 60}, At(0.0)},
        {"linearGradient x1=\"0.5\" x2=\"0.75\"", {299, 60}, At(1.0)},
        // The lines of one colour are at right angles to the vector in the box, not on paper.
        {"linearGradient y2=\"1\"", {200, 100}, At(0.5)},
        {"linearGradient y2=\"1\"", {299.5, 50.25}, At(0.5)},
        {"linearGradient y2=\"1\"", {150, 75}, At(0.25)},
        {"linearGradient gradientUnits=\"userSpaceOnUse\" x2=\"100%\"", {200, 60}, At(0.5)},
        {"linearGradient gradientUnits=\"userSpaceOnUse\" x1=\"0\" x2=\"0\" y2=\"100%\"", {110, 100}, At(0.5)},
        {"linearGradient gradientUnits=\"userSpaceOnUse\" x1=\"100\" y1=\"50\" x2=\"200\" y2=\"150\"",
         {200, 50},
         At(0.5)},
        {"linearGradient gradientTransform=\"translate(0.5)\"", {250, 60}, At(0.25)},
        {"linearGradient gradientTransform=\"rotate(90)\"", {250, 75}, At(0.25)},
        {"linearGradient gradientTransform=\"skewX(45)\"", {200, 100}, At(0.0)},
        {"linearGradient x2=\"0.25\" spreadMethod=\"repeat\"", {162.5, 60}, At(0.25)},
        {"linearGradient x2=\"0.25\" spreadMethod=\"reflect\"", {162.5, 60}, At(0.75)},
        {"linearGradient x1=\"0.5\" x2=\"0.75\" spreadMethod=\"reflect\"", {187.5, 60}, At(0.25)},
        {"linearGradient x2=\"0.25\" y2=\"0.25\" spreadMethod=\"repeat\"", {175, 87.5}, At(0.5)},
        {"linearGradient x2=\"0.25\" y2=\"0.25\" spreadMethod=\"reflect\"", {160, 90}, At(0.6)},
    };
    ExpectPixels(rows, kRect);
}

TEST(Paints, RadialGradientsLieWhereTheyShould) {
    const GradientRow rows[] = {
        {"radialGradient cx=\"50%\"", {200, 100}, At(0.0)},
        {"radialGradient r=\"0.5\"", {250, 100}, At(0.5)},
        {"radialGradient r=\"0.5\"", {200, 125}, At(0.5)},
        {"radialGradient r=\"0.5\"", {299, 51}, At(1.0)},
        {"radialGradient cx=\"0.25\" cy=\"0.25\" r=\"0.25\"", {175, 75}, At(0.5)},
        {"radialGradient fx=\"0.25\"", {250, 100}, At(2.0 / 3.0)},
        {"radialGradient fx=\"0.25\"", {125, 100}, At(0.5)},
        {"radialGradient fr=\"0.25\"", {275, 100}, At(0.5)},
        {"radialGradient fr=\"25%\"", {210, 100}, At(0.0)},
        {"radialGradient fx=\"0.25\" fr=\"0.1\"", {115, 100}, At(0.5)},
        {"radialGradient fx=\"5\" fr=\"2\"", {120, 100}, At(0.0)},
        {"radialGradient r=\"0.25\" spreadMethod=\"repeat\"", {262.5, 100}, At(0.25)},
        {"radialGradient r=\"0.25\" spreadMethod=\"reflect\"", {262.5, 100}, At(0.75)},
        {"radialGradient gradientUnits=\"userSpaceOnUse\" cx=\"200\" cy=\"100\" r=\"100\"", {200, 150}, At(0.5)},
        {"radialGradient gradientUnits=\"userSpaceOnUse\" cx=\"0\" cy=\"0\" r=\"500\"", {300, 150}, At(0.6708)},
        {"radialGradient gradientTransform=\"translate(0.5 0.5) scale(1 0.5) translate(-0.5 -0.5)\"",
         {200, 112.5},
         At(0.5)},
    };
    ExpectPixels(rows, kRect);
}

TEST(Paints, LeavesOfAllKindsAndTransformsAreFilled) {
    const std::string gradient = std::string("<linearGradient id=\"g\" y2=\"1\">") + kStops + "</linearGradient>";
    const char* const leaves[] = {
        R"svg(<ellipse id="a" cx="200" cy="100" rx="100" ry="50" fill="url(#g)"/>)svg",
        R"svg(<path id="a" d="M100 50h200v100h-200z" fill="url(#g)" stroke="#000000"/>)svg",
        R"svg(<polygon id="a" points="100 50 300 50 300 150 100 150" fill="url(#g)" clip-path="url(#c)"/>)svg",
        R"svg(<g transform="scale(0.5) rotate(20)"><rect id="a" x="100" y="50" width="200" height="100" fill="url(#g)"/></g>)svg",
    };
    for (const char* leaf : leaves) {
        const Painted painted(gradient + leaf);
        for (const auto& [place, offset] :
             {std::pair(ZAMMathPoint2D{200, 100}, 0.5), {{160, 80}, 0.3}, {{270, 120}, 0.775}}) {
            EXPECT_TRUE(IsNear(painted.GetPixel("a", place), At(offset))) << leaf << offset;
        }
    }
}

TEST(Paints, MovedLeavesKeepWhatTheFillHasNoPartIn) {
    const Painted painted(
        std::string("<linearGradient id=\"g\" y2=\"1\">") + kStops + "</linearGradient>" +
        R"svg(<rect id="a" width="20" height="10" transform="scale(2)" fill="url(#g)" fill-opacity="0.5"
                             style="fill-rule:evenodd" stroke="#00ff00" stroke-width="3" clip-path="url(#c)"/>
                             <rect id="b" width="20" height="10" transform="scale(2)" fill="url(#g)"><title>T</title></rect>)svg");
    const ZAMPrepressElement& group = *painted.Find("a");
    ASSERT_TRUE(group.Is("g"));
    ASSERT_EQ(group.children.size(), 2U);
    EXPECT_EQ(group.Get("clip-path"), "url(#c)");
    EXPECT_EQ(group.Get("transform"), "scale(2)");
    EXPECT_FALSE(group.Has("stroke"));
    const ZAMPrepressElement& fill = *group.children[0];
    EXPECT_EQ(fill.Get("fill-opacity"), "0.5");
    EXPECT_EQ(fill.Get("style"), "fill-rule:evenodd");
    EXPECT_FALSE(fill.Has("stroke"));
    const ZAMPrepressElement& stroke = *group.children[1];
    EXPECT_TRUE(stroke.Is("rect"));
    EXPECT_EQ(stroke.Get("fill"), "none");
    EXPECT_EQ(stroke.Get("stroke-width"), "3");
    EXPECT_FALSE(stroke.Has("clip-path"));
    EXPECT_FALSE(stroke.Has("transform"));

    const ZAMPrepressElement& path = *painted.Find("b");
    ASSERT_TRUE(path.Is("path"));
    EXPECT_TRUE(path.children.front()->Is("title"));
    const auto map = ZAMPrepressReadTransform(path.Get("transform"));
    const ZAMMathBox2D box = ZAMPrepressMapPath(*ZAMPrepressPath::Of(path), *map).GetBox();
    EXPECT_NEAR(box.xMin, 0.0, 1e-6);
    EXPECT_NEAR(box.xMax, 40.0, 1e-6);
    EXPECT_NEAR(box.yMax, 20.0, 1e-6);
}

TEST(Paints, SomeGradientsAreOneColour) {
    struct Row {
        const char* gradient;
        const char* fill;
        const char* opacity;
    };
    const Row rows[] = {
        {R"svg(<linearGradient id="g"/>)svg", "none", "0.5"},
        {R"svg(<linearGradient id="g"><stop stop-color="#123456" stop-opacity="0.5"/></linearGradient>)svg", "#123456",
         "0.25"},
        {R"svg(<linearGradient id="g"><stop stop-opacity="0"/></linearGradient>)svg", "none", "0.5"},
        {R"svg(<linearGradient id="g" x2="0"><stop/><stop offset="1" stop-color="#0000ff"/></linearGradient>)svg",
         "#0000ff", "0.5"},
        {R"svg(<radialGradient id="g" r="0"><stop/><stop offset="1" stop-color="#0000ff"/></radialGradient>)svg",
         "#0000ff", "0.5"},
        {R"svg(<radialGradient id="g" r="-1"><stop/><stop offset="1" stop-color="#0000ff"/></radialGradient>)svg",
         "none", "0.5"},
        {R"svg(<linearGradient id="g" x1="2" x2="3"><stop stop-color="#ff0000"/><stop offset="1"/></linearGradient>)svg",
         "#ff0000", "0.5"},
        {R"svg(<linearGradient id="g" gradientTransform="scale(0)"><stop/><stop offset="1" stop-color="#ff0000"/></linearGradient>)svg",
         "none", "0.5"},
        {R"svg(<linearGradient id="g" gradientTransform="what"><stop/><stop offset="1" stop-color="#ff0000"/></linearGradient>)svg",
         "none", "0.5"},
    };
    for (const Row& row : rows) {
        const Painted painted(std::string(row.gradient) +
                              R"svg(<rect id="a" width="9" height="9" fill="url(#g)" fill-opacity="0.5"/>)svg");
        EXPECT_EQ(painted.Find("a")->Get("fill"), row.fill) << row.gradient;
        EXPECT_EQ(painted.Find("a")->Get("fill-opacity"), row.opacity) << row.gradient;
    }
}

TEST(Paints, LinksBringWhatIsMissing) {
    const Painted painted(R"svg(<linearGradient id="g" xlink:href="#b" x2="0.5"/>
        <radialGradient id="b" spreadMethod="reflect" xlink:href="#c"/>
        <linearGradient id="c" xlink:href="#g" x2="0.25" spreadMethod="repeat">
        <stop offset="0" stop-color="#ff0000"/><stop offset="1" stop-color="#0000ff"/></linearGradient>)svg" +
                          std::string(kRect));
    EXPECT_TRUE(IsNear(painted.GetPixel("a", {150, 60}), At(0.5)));
    EXPECT_TRUE(IsNear(painted.GetPixel("a", {225, 60}), At(0.75)));
    EXPECT_EQ(painted.Find("g"), nullptr) << "gradients are of no use any more";
}

TEST(Paints, StrokesBecomeShapes) {
    const Painted painted(
        std::string("<linearGradient id=\"g\">") + kStops + "</linearGradient>" +
        R"svg(<rect id="a" x="100" y="50" width="200" height="100" fill="none" stroke="url(#g)" stroke-opacity="0.5"/>
              <rect id="b" width="20" height="10" transform="scale(2)" stroke="url(#g)" stroke-width="3"><title>T</title></rect>
              <line id="c" x2="9" stroke="url(#g)"/>
              <line id="d" x2="9" stroke="url(#g)  #00ff00"/>
              <text id="e" y="50" stroke="url(#g)">text</text>
              <rect id="f" width="90" height="50" fill="none" stroke="url(#g)" stroke-dasharray="0.001"/>)svg");
    const ZAMPrepressElement& alone = *painted.Find("a");
    EXPECT_TRUE(alone.Is("path"));
    EXPECT_EQ(alone.Get("fill-opacity"), "0.5");
    EXPECT_FALSE(alone.Has("stroke"));
    EXPECT_TRUE(IsNear(painted.GetPixel("a", {150, 50}), At(0.25)));

    const ZAMPrepressElement& group = *painted.Find("b");
    ASSERT_TRUE(group.Is("g"));
    ASSERT_EQ(group.children.size(), 3U);
    EXPECT_EQ(group.Get("transform"), "scale(2)");
    EXPECT_TRUE(group.children[0]->Is("rect"));
    EXPECT_FALSE(group.children[0]->Has("stroke-width"));
    const ZAMMathBox2D box = ZAMPrepressPath::Of(*group.children[1])->GetBox();
    EXPECT_EQ(box, (ZAMMathBox2D{-1.5, -1.5, 21.5, 11.5}));

    EXPECT_EQ(painted.Find("c")->Get("stroke"), "none") << "there is no box to measure by";
    EXPECT_EQ(painted.Find("d")->Get("stroke"), "#00ff00");
    EXPECT_EQ(painted.Find("e")->Get("stroke"), "#800080");
    EXPECT_EQ(painted.Find("f")->Get("stroke"), "#800080") << "there are too many dashes";
}

TEST(Paints, OnlyWhatIsSeenIsDrawn) {
    const std::string gradient =
        std::string("<linearGradient id=\"g\" gradientUnits=\"userSpaceOnUse\" x2=\"400\" y2=\"200\">") + kStops +
        "</linearGradient>";
    const Painted large(gradient +
                        R"svg(<rect id="a" x="-1e12" y="-1e12" width="2e12" height="2e12" fill="url(#g)"/>)svg");
    EXPECT_TRUE(IsNear(large.GetPixel("a", {200, 100}), At(0.5)));
    EXPECT_TRUE(IsNear(large.GetPixel("a", {50, 150}), At(0.25)));
    const Painted outside(gradient + R"svg(<rect id="a" x="500" width="100" height="100" fill="url(#g)"/>)svg");
    EXPECT_EQ(outside.Find("a")->Get("fill"), "none");
}

TEST(Paints, EqualTilesAreOne) {
    const std::string gradients = std::string("<radialGradient id=\"r\">") + kStops +
                                  "</radialGradient><linearGradient id=\"d\" y2=\"1\">" + kStops +
                                  "</linearGradient><linearGradient id=\"d2\" y2=\"1\" xlink:href=\"#d\"/>";
    const Painted painted(gradients + R"svg(<circle id="a" cx="50" cy="50" r="40" fill="url(#r)"/>
        <ellipse id="b" cx="200" cy="90" rx="90" ry="12" fill="url(#r)"/>
        <rect id="c" width="30" height="30" fill="url(#d)"/><rect id="d" y="99" width="30" height="30" fill="url(#d2)"/>)svg");
    EXPECT_EQ(painted.GetTile("a"), painted.GetTile("b"));
    EXPECT_EQ(painted.GetTile("c"), painted.GetTile("d"));
    EXPECT_NE(painted.GetTile("a"), painted.GetTile("c"));
    // The leaf that shows it largest says how many pixels there are.
    const Painted alone(gradients + R"svg(<circle id="a" cx="5" cy="5" r="4" fill="url(#r)"/>)svg");
    EXPECT_LT(alone.GetPicture("a")->width, painted.GetPicture("a")->width);
}

TEST(Paints, TilesAreAsLargeAsNeedBe) {
    struct Row {
        const char* document;
        std::size_t leastWidth;
        std::size_t mostWidth;
        std::size_t mostPixels;
    };
    const Row rows[] = {
        {R"svg(<linearGradient id="g"><stop/><stop offset="1" stop-color="#ffffff"/></linearGradient>)svg", 150, 700,
         700},
        {R"svg(<linearGradient id="g"><stop/><stop offset="1" stop-color="#080808"/></linearGradient>)svg", 16, 20, 20},
        {R"svg(<linearGradient id="g"><stop offset="0.5"/><stop offset="0.5" stop-color="#ffffff"/></linearGradient>)svg",
         660, 800, 800},
        {R"svg(<linearGradient id="g" y2="1"><stop/><stop offset="1" stop-color="#ffffff"/></linearGradient>)svg", 150,
         700, 700},
        {R"svg(<radialGradient id="g"><stop/><stop offset="1" stop-color="#ffffff"/></radialGradient>)svg", 256, 512,
         262144},
    };
    for (const Row& row : rows) {
        const auto picture = Painted(row.document + std::string(kRect)).GetPicture("a");
        ASSERT_TRUE(picture) << row.document;
        EXPECT_GE(picture->width, row.leastWidth) << row.document;
        EXPECT_LE(picture->width, row.mostWidth) << row.document;
        EXPECT_LE(picture->pixels.size(), row.mostPixels) << row.document;
    }
}

TEST(Paints, NumbersBeyondMeasureDoNoHarm) {
    const char* const gradients[] = {
        R"svg(<linearGradient id="g" x2="1e300" y2="1e300">)svg",
        R"svg(<linearGradient id="g" x2="1e-300" y2="1e-300">)svg",
        R"svg(<linearGradient id="g" gradientUnits="userSpaceOnUse" x2="1e-9" spreadMethod="repeat">)svg",
        R"svg(<linearGradient id="g" gradientTransform="matrix(1e200 1 1 1e200 0 0)">)svg",
        R"svg(<linearGradient id="g" gradientTransform="matrix(1e-200 0 0 1 1e200 0)" y2="1">)svg",
        R"svg(<radialGradient id="g" r="1e-200">)svg",
        R"svg(<radialGradient id="g" r="1e200" fx="1e300" spreadMethod="reflect">)svg",
        R"svg(<radialGradient id="g" cx="1e12" gradientUnits="userSpaceOnUse" r="1e-3">)svg",
    };
    const char* const leaves[] = {
        R"svg(<rect id="a" width="1e300" height="1e300" fill="url(#g)"/>)svg",
        R"svg(<rect id="a" width="1e-300" height="1e-300" fill="url(#g)" stroke="url(#g)"/>)svg",
        R"svg(<path id="a" d="M-1e308 0L1e308 1e308z" fill="url(#g)"/>)svg",
        R"svg(<path id="a" d="M0 0h9v9" transform="scale(1e-200)" fill="url(#g)"/>)svg",
        R"svg(<path id="a" d="M0 0h9v9" transform="scale(1e200)" fill="url(#g)"/>)svg",
        R"svg(<path id="a" d="M0 0h9v9" transform="scale(0)" fill="url(#g)"/>)svg",
        R"svg(<rect id="a" x="1e15" width="1" height="1" fill="url(#g)"/>)svg",
    };
    for (const char* gradient : gradients) {
        for (const char* leaf : leaves) {
            const std::string name = gradient[1] == 'l' ? "linearGradient" : "radialGradient";
            const Painted painted(gradient + std::string(kStops) + "</" + name + ">" + leaf);
            if (painted.Find("a") != nullptr) {
                const auto picture = painted.GetPicture("a");
                EXPECT_LE(picture ? picture->pixels.size() : 0, 1024U * 1024U) << gradient << leaf;
            }
        }
    }
}

} // namespace
