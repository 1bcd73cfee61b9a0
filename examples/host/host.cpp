// SPDX-License-Identifier: MIT
// Prints an outline of the print model of an SVG document: host drawing.svg
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVG2Interpreter.h"

#include <fstream>
#include <iostream>

namespace {

void PrintOutline(const ZAMPrtGraphicPrimitiveElt& element, std::size_t depth) {
    std::cout << std::string(2 * depth, ' ') << element.IsA();
    if (!element.GetID().IsEmpty()) {
        std::cout << " #" << element.GetID().View();
    }
    if (const std::size_t count = element.GetChildren().size(); count > 0) {
        std::cout << " (" << count << (count == 1 ? " child)" : " children)");
    }
    std::cout << "\n";
    for (const auto& child : element.GetChildren()) {
        PrintOutline(*child, depth + 1);
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: host drawing.svg\n";
        return 2;
    }
    std::ifstream file(argv[1], std::ios::binary);
    ZAMPrintSVG2Interpreter interpreter(&file);
    interpreter.SetCurrentPath(argv[1]);

    // The model belongs to the host; the driver only carries it to the decoder.
    const ZAMRef<ZAMPrtModel> model = ZAMNew<ZAMPrtModel>();
    ZAMPrintSVGModelDriver driver(model.Get());
    if (!file || interpreter.Decode(&driver) != 1) {
        std::cerr << "host: " << argv[1] << " cannot be read\n";
        return 1;
    }
    for (const auto& image : model->GetImages()) {
        PrintOutline(*image, 0);
    }
    return 0;
}
