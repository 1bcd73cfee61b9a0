// SPDX-License-Identifier: MIT
#pragma once

#include "framework/model/ZAMPrtAllElements.h"
#include "framework/print/ZAMPrintModelRender.h"
#include "tests/framework/print/RecordingGenerator.h"

#include <functional>
#include <gtest/gtest.h>
#include <new>
#include <string>
#include <string_view>
#include <vector>

// A stroke of the colour with the index: 0 black, 1 red.
inline ZAMPrtStrokeAttributes Stroke(unsigned int colour, double width = 1) {
    ZAMPrtStrokeAttributes stroke;
    stroke.SetStrokeColourIndex(colour);
    stroke.SetStrokeWidth(width);
    return stroke;
}

inline ZAMPrtFillAttributes Fill(unsigned int colour, unsigned char transparency = 255, int rule = 0) {
    ZAMPrtFillAttributes fill;
    fill.SetFillColourIndex(colour);
    fill.SetFillColourTransparency(transparency);
    fill.SetFillRule(static_cast<ZAMPrtFillRule>(rule));
    return fill;
}

// A model of one page, 100 points a side, on which (x, y) of the model is (x, 100 - y).
class Scene {
public:
    Scene() {
        unsigned int index = 0;
        _Colours->AddColour(0, 0, 0, index);
        _Colours->AddColour(255, 0, 0, index);
        _Image->SetColourTable(_Colours.Get());
        _Image->SetSize(100, 100);
        _Model->AddImage(_Image.Get());
        _Parameters.scale = 1.25;
    }

    ZAMPrtImageElt& Image() { return *_Image; }
    // Another page of that size.
    ZAMPrtImageElt& AddPage() {
        const auto image = ZAMNew<ZAMPrtImageElt>();
        image->SetSize(100, 100);
        _Model->AddImage(image.Get());
        return *image;
    }
    int Draw(ZAMPrintGenerator& generator) { return ZAMPrintModelRender(_Model.Get(), &generator, _Parameters).Draw(); }

    // The places for links, and what is drawn between clip and unclip, one mark a line.
    std::string Marks() {
        RecordingGenerator generator;
        EXPECT_EQ(Draw(generator), 1);
        const std::string text = generator.Take();
        const std::string head = "document\npage 100 x 100\n";
        const std::string clip = "clip 0,100 100,0\n";
        const std::string tail = "unclip\nend page\nend document\n";
        const std::size_t at = text.find(clip);
        EXPECT_TRUE(text.starts_with(head) && at != std::string::npos && text.ends_with(tail)) << text;
        const std::string places = text.substr(head.size(), at - head.size());
        return places + text.substr(at + clip.size(), text.size() - at - clip.size() - tail.size());
    }

private:
    ZAMRef<ZAMPrtModel> _Model = ZAMNew<ZAMPrtModel>();
    ZAMRef<ZAMPrtImageElt> _Image = ZAMNew<ZAMPrtImageElt>();
    ZAMRef<ZAMPrtColourTable> _Colours = ZAMNew<ZAMPrtColourTable>();
    ZAMPrintParameters _Parameters;
};

template <class Container>
void AddLine(Container& container, const ZAMMathPoint2D& start, const ZAMMathPoint2D& end,
             const ZAMPrtStrokeAttributes& stroke = Stroke(0)) {
    const auto line = ZAMNew<ZAMPrtLineElt>();
    line->SetStartPoint(start);
    line->SetEndPoint(end);
    line->SetStrokeAttributes(stroke);
    container.AddChild(line.Get());
}

template <class Element, class Container> Element& Add(Container& container) {
    const auto element = ZAMNew<Element>();
    if (!element) {
        throw std::bad_alloc();
    }
    container.AddChild(element.Get());
    return *element;
}

// A link to an address, or to an element when it starts with #.
inline ZAMPrtGroupElt& AddLinkGroup(ZAMPrtGroupElt& parent, std::string_view target) {
    auto& group = Add<ZAMPrtGroupElt>(parent);
    ZAMPrintLinkURI link;
    if (target.starts_with('#')) {
        link.SetElementId(target.substr(1));
    } else {
        link.SetBaseURL(target);
    }
    ZAMPrtGroupAttributes attributes;
    attributes.SetLinkURI(link);
    group.SetGroupAttributes(attributes);
    return group;
}

struct Row {
    std::function<void(ZAMPrtImageElt&)> build;
    std::string marks;
};

inline void ExpectMarks(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        Scene scene;
        row.build(scene.Image());
        EXPECT_EQ(scene.Marks(), row.marks) << "row " << &row - rows.data();
    }
}
