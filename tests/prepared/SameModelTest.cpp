// SPDX-License-Identifier: MIT
// Bodies of a document of 200 by 100: each that is prepared gives the model of the plain one that is not.
#include "prepress/ZAMPrepress.h"
#include "tests/support/SvgDecoding.h"

#include <gtest/gtest.h>

namespace {

std::string ModelOf(const ZAMLightXmlElement& root) {
    const auto model = ZAMNew<ZAMPrtModel>();
    ZAMPrintSVG2Interpreter decoder(&root);
    ZAMPrintSVGModelDriver driver(model.Get());
    return model && decoder.Decode(&driver) == 1 ? ToJson(*model) : "not decoded";
}

ZAMLightXmlElement Document(const char* body) {
    return ParseDocument("<svg width='200' height='100'>" + std::string(body) + "</svg>");
}

void ExpectSameModels(std::initializer_list<std::pair<const char*, const char*>> pairs) {
    for (const auto& [compact, plain] : pairs) {
        EXPECT_EQ(ModelOf(ZAMPrepress::Prepare(Document(compact))), ModelOf(Document(plain)))
            << compact << "\nand " << plain;
    }
}

TEST(SameModel, Paths) {
    ExpectSameModels({
        {"<path d='M10.5.5-3+4'/>", "<path d='M10.5 0.5 L-3 4'/>"},
        {"<path d='M1e1\n1E1\tL2E-1 0'/>", "<path d='M10 10 L0.2 0'/>"},
        {"<path d='M10 10a5 6 7 0110 10' fill='none' stroke='#000000'/>",
         "<path d='M10 10 a 5 6 7 0 1 10 10' fill='none' stroke='#000000'/>"},
        {"<path d='M0 0L5 5 10mm 3'/>", "<path d='M0 0L5 5'/>"},
        {"<path d='M0 0C0 9 9 9 9 0'/>", "<path d='M0 0C0 9 9 9 9 0L9 0'/>"},
        {"<polyline points='0,0 9,0 9,9'/>", "<path d='M0 0L9 0L9 9'/>"},
        {"<polygon points='0,0 9-1.5.5'/>", "<polygon points='0,0 9,-1.5'/>"},
    });
}

TEST(SameModel, Transforms) {
    ExpectSameModels({
        {"<g transform='translate(10-20)\nrotate (30)'><rect width='1' height='1'/></g>",
         "<g transform='translate(10 -20) rotate(30)'><rect width='1' height='1'/></g>"},
        {"<g transform='scale(2) turn(3)'><rect width='1' height='1'/></g>", "<g><rect width='1' height='1'/></g>"},
        {"<svg transform='turn(3)' x='4' overflow='visible'><rect width='1' height='1'/></svg>",
         "<g transform='translate(4 0)'><rect width='1' height='1'/></g>"},
        {"<rect id='r' width='1' height='1'/><use transform='turn(3)' y='5' xlink:href='#r'/>",
         "<rect id='r' width='1' height='1'/><g transform='translate(0 5)'><rect width='1' height='1'/></g>"},
        {"<rect id='r' width='1' height='1'/><use transform='scale(2)' y='5' xlink:href='#r'/>",
         "<rect id='r' width='1' height='1'/><g transform='scale(2) translate(0 5)'><rect width='1' height='1'/></g>"},
    });
}

TEST(SameModel, Shapes) {
    ExpectSameModels({
        {"<rect width='2em' height='5'/>", "<rect width='32' height='5'/>"},
        {"<rect width='5'/><circle r='3'/>", "<circle r='3'/>"},
        {"<rect width='50%' height='50%' rx='0'/>", "<rect width='100' height='50'/>"},
    });
}

TEST(SameModel, TextsAndMarkers) {
    ExpectSameModels({
        {"<text>\n a\n <tspan x='5' y='9'>b</tspan></text>",
         "<g><text x='0' y='0' font-family='serif' font-size='16'>a</text>"
         "<text x='5' y='9' font-family='serif' font-size='16'>b</text></g>"},
        {"<text x='5' y='9' style='text-anchor:end;fill:red' font-family='sans'>ab</text>",
         "<text x='5' y='9' font-family='sans-serif' text-anchor='end' fill='#ff0000'>ab</text>"},
        {"<text x='1 5' y='9' rotate='0 90'>ab</text>",
         "<g><text x='1' y='9' font-family='serif' font-size='16'>a</text>"
         "<text transform='matrix(0 1 -1 0 5 9)' x='0' y='0' font-family='serif' font-size='16'>b</text></g>"},
        {"<marker id='m' orient='auto' markerUnits='userSpaceOnUse'><rect width='1' height='2'/></marker>"
         "<line y2='5' stroke='red' marker-end='url(#m)'/>",
         "<line y2='5' stroke='#ff0000'/><g><g transform='matrix(0 1 -1 0 0 5)'><rect width='1' height='2'/></g></g>"},
    });
}

TEST(SameModel, Styles) {
    ExpectSameModels({
        {"<rect width='5' height='5' style='fill:rgb(100%,0%,0%);stroke:hsl(240,100%,50%)'/>",
         "<rect width='5' height='5' fill='#ff0000' stroke='#0000ff'/>"},
        {"<style>g > .a:last-of-type{fill:red}</style><g><rect class='a' width='5' height='5'/></g>",
         "<g><rect width='5' height='5' fill='#ff0000'/></g>"},
        {"<g color='red' font-size='4'><circle r='1em' stroke='currentColor' stroke-width='.5em'/></g>",
         "<g><circle r='4' stroke='#ff0000' stroke-width='2'/></g>"},
        {"<g fill='red' opacity='.5'><rect width='5' height='5' fill='inherit' fill-opacity='50%'/></g>",
         "<g><rect width='5' height='5' fill='#ff0000' fill-opacity='.25'/></g>"},
        {"<rect width='5' height='5' display='none'/><rect width='9' height='9' style='visibility:hidden'/>", ""},
        {"<s:rect xmlns:s='http://www.w3.org/2000/svg' width='5' height='5'/>", "<rect width='5' height='5'/>"},
    });
}

// What the interpreter draws rightly is handed on as it is.
TEST(SameModel, PlainDocumentsStay) {
    for (const char* const body : {"<path d='M1 1L2,2-3-4 5 6z'/>", "<polygon points='0,0 1,1 2,0'/>",
                                   "<rect width='10%' height='5mm'/>", "<g transform='translate(1,2)scale(3)'/>",
                                   "<line x1='1' x2='2'/>", "<polyline points='0,0 1,1' fill='none'/>",
                                   "<ellipse rx='1' ry='2'/>", "<text x='1' y='2' text-anchor='end'>a b</text>"}) {
        const ZAMLightXmlElement document = Document(body);
        const ZAMLightXmlElement prepared = ZAMPrepress::Prepare(document);
        EXPECT_EQ(prepared.GetName().data(), document.GetName().data()) << body;
    }
}

} // namespace
