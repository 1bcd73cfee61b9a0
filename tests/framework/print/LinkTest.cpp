// SPDX-License-Identifier: MIT
#include "tests/framework/print/Scene.h"

namespace {

template <class Container>
ZAMPrtRectangleElt& AddArea(Container& container, const ZAMMathPoint2D& first, const ZAMMathPoint2D& opposite,
                            const char* id = "") {
    auto& rectangle = Add<ZAMPrtRectangleElt>(container);
    rectangle.SetCorners(first, opposite);
    rectangle.SetID(id);
    rectangle.SetDrawStyle(ZAMPrtDrawStyle::None);
    return rectangle;
}

// A link over 10,50 to 30,80 of the page.
ZAMPrtGroupElt& AddLinkArea(ZAMPrtImageElt& image, const char* target) {
    auto& group = AddLinkGroup(Add<ZAMPrtGroupElt>(image), target);
    AddArea(group, {10, 20}, {30, 50});
    return group;
}

ZAMPrtTransformAttributes MoveRight(double distance) {
    ZAMPrtTransformAttributes transform;
    transform.AddTranslation({distance, 0});
    return transform;
}

ZAMPrtSymbolElt& AddSymbol(ZAMPrtImageElt& image) {
    auto& group = Add<ZAMPrtGroupElt>(image);
    group.SetTransformAttributes(MoveRight(40));
    auto& symbol = Add<ZAMPrtSymbolElt>(group);
    symbol.SetOrigin({7, 7});
    symbol.SetSize(20, 20);
    return symbol;
}

} // namespace

TEST(LinkTest, LinksCoverWhatTheyHoldOnThePage) {
    const auto linkTo = [](const char* url, const ZAMMathPoint2D& first, const ZAMMathPoint2D& opposite) {
        return [=](ZAMPrtImageElt& image) {
            auto& rectangle = Add<ZAMPrtRectangleElt>(AddLinkGroup(Add<ZAMPrtGroupElt>(image), url));
            rectangle.SetCorners(first, opposite);
        };
    };
    ExpectMarks({
        {linkTo("http://a/", {10, 20}, {30, 50}), "link http://a/ 10,50 30,80\n"},
        {linkTo("http://a/", {-10, 90}, {30, 150}), "link http://a/ 0,0 30,10\n"},
        {linkTo("http://a/", {-10, 20}, {-5, 30}), ""},
        {linkTo("", {10, 20}, {30, 50}), ""},
        {[](auto& image) { AddLinkGroup(Add<ZAMPrtGroupElt>(image), "http://empty/"); }, ""},
        {[](auto& image) {
             auto& outer = AddLinkGroup(Add<ZAMPrtGroupElt>(image), "http://outer/");
             AddLine(outer, {0, 0}, {50, 50});
             AddLine(AddLinkGroup(outer, "http://inner/"), {10, 10}, {20, 20}, Stroke(9));
         },
         "M0,100 L50,50 pen 0/0/0/255 1 10 13\nlink http://inner/ 10,80 20,90\nlink http://outer/ 0,50 50,100\n"},
    });
}

TEST(LinkTest, LinksWithinTheDocumentLeadToWhatShows) {
    const std::string link = "link #there 10,50 30,80\n";
    ExpectMarks({
        {[](auto& image) { // before and behind the link, whatever the letters' case
             AddArea(image, {40, 60}, {50, 70}, "there");
             AddLinkArea(image, "#THERE");
             AddLinkArea(image, "#There");
         },
         "place there 40,30\n" + link + link},
        {[](auto& image) { // the link itself, and what holds it
             AddLinkArea(image, "#there").SetID("There");
             AddLinkArea(image, "#page");
             image.SetID("page");
         },
         "place page 0,0\nplace There 10,50\nlink #There 10,50 30,80\nlink #page 10,50 30,80\n"},
        {[](auto& image) { // only what is on the page, and of that the first
             AddLinkArea(image, "#there");
             AddArea(image, {-20, 10}, {-10, 20}, "there");
             Add<ZAMPrtGroupElt>(image).SetID("there");
             AddArea(image, {-20, 90}, {10, 120}, "there");
             AddArea(image, {50, 50}, {60, 60}, "there");
         },
         "place there 0,0\n" + link},
        {[](auto& image) { // nowhere to lead to
             AddArea(Add<ZAMPrtPatternElt>(image), {0, 0}, {9, 9}, "tile");
             AddArea(image, {0, 0}, {9, 9}, "");
             for (const char* target : {"#tile", "#there", "#", ""}) {
                 AddLinkArea(image, target);
             }
         },
         ""},
        {[](auto& image) { // symbols shift and cut their content
             auto& symbol = AddSymbol(image);
             AddArea(symbol, {90, 90}, {99, 99}, "there");
             AddArea(symbol, {2, 12}, {17, 17}, "there");
             AddLinkArea(image, "#there");
             auto& inner = AddLinkGroup(Add<ZAMPrtGroupElt>(symbol), "#there");
             AddArea(inner, {10, 10}, {12, 12});
         },
         "place there 40,90\nclip 40,100 60,80\nlink #there 43,95 45,97\nunclip\n" + link},
    });
}

TEST(LinkTest, LinksLeadToOtherPages) {
    Scene scene;
    auto& second = scene.AddPage();
    AddArea(scene.Image(), {10, 10}, {20, 20}, "first");
    AddLinkArea(scene.Image(), "#second");
    AddArea(second, {30, 30}, {40, 40}, "second");
    AddArea(second, {0, 0}, {40, 40}, "first");
    AddLinkArea(second, "#first");
    AddLinkArea(second, "http://a/");
    RecordingGenerator generator;
    EXPECT_EQ(scene.Draw(generator), 1);
    EXPECT_EQ(generator.Take(), "document\npage 100 x 100\nplace first 10,80\nclip 0,100 100,0\n"
                                "link #second 10,50 30,80\nunclip\nend page\n"
                                "page 100 x 100\nplace second 30,60\nclip 0,100 100,0\n"
                                "link #first 10,50 30,80\nlink http://a/ 10,50 30,80\nunclip\nend page\n"
                                "end document\n");
}
