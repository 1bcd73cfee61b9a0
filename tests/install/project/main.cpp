// SPDX-License-Identifier: MIT
// Prints an SVG document on A4 paper: print drawing.svg drawing.pdf
#include "framework/base/ZAMAllocationBudget.h"
#include "framework/base/ZAMFileAccessPolicy.h"
#include "framework/base/ZAMFilePath.h"
#include "framework/lightxml/ZAMLightXmlElement.h"
#include "framework/lightxml/ZAMLightXmlInputStreamBuffer.h"
#include "framework/lightxml/ZAMLightXmlParser.h"
#include "generators/cairo/ZAMPrintCairoGenerator.h"
#include "prepress/ZAMPrepress.h"
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVGInterpreter.h"

#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: print drawing.svg drawing.pdf\n";
        return 2;
    }
    std::ifstream in(argv[1], std::ios::binary);
    const std::vector<char> bytes(std::istreambuf_iterator<char>(in), {});
    const ZAMLightXmlInputStreamBuffer buffer(reinterpret_cast<const unsigned char*>(bytes.data()),
                                              static_cast<int>(bytes.size()));
    ZAMLightXmlParser parser;
    ZAMLightXmlElement root;
    if (parser.Parse(buffer, root) != 1) {
        const ZAMLightXmlError& error = parser.GetError();
        std::cerr << argv[1] << ":" << error.line << ":" << error.column << ": " << error.reason << "\n";
        return 1;
    }

    // Pictures come from the document's own folder only, and what it reuses has a bound.
    ZAMUnicodeString folder;
    ZAMUnicodeString name;
    ZAMSplitPath(argv[1], folder, name);
    const ZAMFileAccessPolicy files = ZAMFileAccessPolicy::OneFolder(folder);
    ZAMAllocationBudget budget;

    // What people draw with, said in the interpreter's smaller vocabulary.
    root = ZAMPrepress::Prepare(root, nullptr, argv[1]);

    ZAMPrintParameters paper; // lengths in points
    paper.pageWidth = 595.0;
    paper.pageHeight = 842.0;
    paper.margin = 28.0;
    paper.fit = ZAMPrintFit::Shrink;

    ZAMPrintSVGInterpreter interpreter(&root);
    interpreter.SetCurrentPath(argv[1]);
    std::ofstream out(argv[2], std::ios::binary);
    ZAMPrintCairoGenerator generator(ZAMPrintCairoGenerator::Format::Pdf, out);
    const bool isDrawn = interpreter.Decode(&generator, paper) == 1;
    out.close();
    if (!isDrawn || !out) {
        std::cerr << argv[2] << ": " << (isDrawn ? "cannot be written" : generator.GetError()) << "\n";
        return 1;
    }
    if (budget.IsSpent()) {
        std::cerr << argv[1] << ": reuses too much; the drawing is incomplete\n";
        return 1;
    }
    return 0;
}
