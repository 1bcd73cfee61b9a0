// SPDX-License-Identifier: MIT
#include "tests/tools/ToolTest.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <png.h>
#include <sstream>
#include <sys/wait.h>

namespace {

std::string Quote(std::string text) {
    for (std::size_t at = text.find('\''); at != std::string::npos; at = text.find('\'', at + 4)) {
        text.replace(at, 1, "'\\''");
    }
    return "'" + text + "'";
}

} // namespace

Picture::Picture(const std::string& png) {
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_memory(&image, png.data(), png.size()) != 0) {
        image.format = PNG_FORMAT_RGBA;
        pixels.resize(PNG_IMAGE_SIZE(image));
        if (png_image_finish_read(&image, nullptr, pixels.data(), 0, nullptr) != 0) {
            width = image.width;
            height = image.height;
        }
    }
    png_image_free(&image);
}

std::string Picture::At(unsigned x, unsigned y) const {
    std::string text;
    for (std::size_t i = 0; i < 4 && x < width && y < height; ++i) {
        char digits[3];
        std::snprintf(digits, sizeof(digits), "%02x", pixels[(std::size_t{y} * width + x) * 4 + i]);
        text += digits;
    }
    return text;
}

ToolTest::ToolTest() : _Before(std::filesystem::current_path()), _Folder(testing::TempDir() + "/zamprint-XXXXXX") {
    if (mkdtemp(_Folder.data()) == nullptr) {
        throw std::runtime_error("no folder for the test");
    }
    std::filesystem::create_directory(_Folder + "/work");
    std::filesystem::current_path(_Folder + "/work");
    setenv("Z", ZAM_ZAMPRINT_PATH, 1);
    setenv("H", ZAM_HOST_PATH, 1);
}

ToolTest::~ToolTest() {
    std::filesystem::current_path(_Before);
    std::filesystem::remove_all(_Folder);
}

RunResult ToolTest::Run(const Arguments& arguments, const std::string& input) const {
    std::string command = "exec \"$Z\"";
    for (const std::string& argument : arguments) {
        command += " " + Quote(argument);
    }
    return Shell(command, input);
}

RunResult ToolTest::Shell(const std::string& command, const std::string& input) const {
    const auto start = std::chrono::steady_clock::now();
    Write(_Folder + "/in", input);
    const std::string streams =
        " <" + Quote(_Folder + "/in") + " >" + Quote(_Folder + "/out") + " 2>" + Quote(_Folder + "/err");
    const int status = std::system(("(" + command + ")" + streams).c_str());
    RunResult result;
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    result.out = Read(_Folder + "/out");
    result.err = Read(_Folder + "/err");
    result.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    return result;
}

std::string ToolTest::CheckPdf(const std::string& bytes) const {
    const std::string file = _Folder + "/checked.pdf";
    Write(file, bytes);
    const RunResult check = Shell("qpdf --check " + Quote(file));
    EXPECT_EQ(check.status, 0) << check.out << check.err << bytes.size() << " bytes";
    return Shell("pdfinfo -rawdates -f 1 -l -1 " + Quote(file)).out;
}

void ToolTest::Write(const std::string& name, const std::string& content) {
    std::ofstream(name, std::ios::binary) << content;
}

std::string ToolTest::Read(const std::string& name) {
    std::ostringstream content;
    content << std::ifstream(name, std::ios::binary).rdbuf();
    return content.str();
}

ToolTest::Arguments ToolTest::List(const std::string& folder) {
    Arguments names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.push_back(entry.path().filename());
    }
    std::sort(names.begin(), names.end());
    return names;
}
