// SPDX-License-Identifier: MIT
#include "tests/generators/cairo/Drawing.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <unistd.h>
#include <vector>

ZAMPrintPath MakePath(const std::string& text) {
    std::istringstream words(text);
    ZAMPrintPath path;
    const auto readPoint = [&] {
        std::string x;
        std::string y;
        words >> x >> y;
        return ZAMMathPoint2D{std::strtod(x.c_str(), nullptr), std::strtod(y.c_str(), nullptr)};
    };
    for (char verb = 0; words >> verb;) {
        if (verb == 'Z') {
            path.ClosePath();
            continue;
        }
        const ZAMMathPoint2D first = readPoint();
        if (verb == 'M') {
            path.MoveTo(first);
        } else if (verb == 'L') {
            path.LineTo(first);
        } else {
            const ZAMMathPoint2D second = readPoint();
            path.CubicTo(first, second, readPoint());
        }
    }
    return path;
}

ZAMPrintPath MakeRectangle(double x, double y, double width, double height) {
    ZAMPrintPath path;
    path.MoveTo({x, y});
    path.LineTo({x + width, y});
    path.LineTo({x + width, y + height});
    path.LineTo({x, y + height});
    path.ClosePath();
    return path;
}

ZAMRef<ZAMPixelImage> MakeImage(int width, int height, const std::function<std::uint32_t(int x, int y)>& at) {
    std::vector<std::uint32_t> pixels;
    pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            pixels.push_back(at(x, y));
        }
    }
    return ZAMNew<ZAMPixelImage>(width, height, std::move(pixels));
}

ZAMPrintPen MakePen(double width) {
    ZAMPrintPen pen;
    pen.width = width;
    return pen;
}

std::string Draw(ZAMPrintCairoGenerator::Format format, const DrawMarks& marks, ZAMPrintParameters parameters) {
    std::ostringstream out;
    ZAMPrintCairoGenerator generator(format, out);
    parameters.resolution = 72.0;
    EXPECT_EQ(generator.BeginDocument(parameters), 1);
    EXPECT_EQ(generator.BeginPage(100.0, 100.0), 1);
    marks(generator);
    EXPECT_EQ(generator.EndPage(), 1);
    EXPECT_EQ(generator.EndDocument(), 1);
    EXPECT_EQ(generator.GetError(), "");
    return out.str();
}

std::string Ask(const std::string& program, const std::string& arguments, const std::string& bytes) {
    const std::filesystem::path file =
        std::filesystem::temp_directory_path() / ("zam-cairo-" + std::to_string(getpid()));
    std::ofstream(file, std::ios::binary) << bytes;
    std::string command = program + " " + arguments + " 2>&1";
    command.replace(command.find("{}"), 2, file.string());
    std::string answer;
    if (FILE* pipe = popen(command.c_str(), "r")) {
        std::array<char, 4096> buffer{};
        for (std::size_t count = 0; (count = fread(buffer.data(), 1, buffer.size(), pipe)) > 0;) {
            answer.append(buffer.data(), count);
        }
        pclose(pipe);
    }
    std::filesystem::remove(file);
    return answer;
}

std::string Uncompress(const std::string& pdf) {
    return Ask("qpdf", "--qdf --object-streams=disable {} -", pdf);
}

void ExpectSound(const std::string& pdf) {
    const std::string answer = Ask("qpdf", "--check {}", pdf);
    EXPECT_NE(answer.find("No syntax or stream encoding errors found"), std::string::npos) << answer;
    EXPECT_EQ(answer.find("WARNING"), std::string::npos) << answer;
}

int Count(const std::string& text, const std::string& part) {
    int count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size())) {
        ++count;
    }
    return count;
}
