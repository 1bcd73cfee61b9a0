// SPDX-License-Identifier: MIT
#include "tests/tools/ToolTest.h"

#include <algorithm>
#include <chrono>
#include <fcntl.h>
#include <fstream>
#include <png.h>
#include <spawn.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

std::string Picture::At(unsigned x, unsigned y) const {
    std::ostringstream text;
    for (std::size_t i = 0; i < 4 && x < width && y < height; ++i) {
        char digits[3];
        std::snprintf(digits, sizeof(digits), "%02x", pixels[(std::size_t{y} * width + x) * 4 + i]);
        text << digits;
    }
    return text.str();
}

ToolTest::ToolTest() : _Before(std::filesystem::current_path()) {
    std::string folder = testing::TempDir() + "/zamprint-XXXXXX";
    if (mkdtemp(folder.data()) == nullptr) {
        throw std::runtime_error("no folder for the test");
    }
    _Streams = folder;
    _Folder = _Streams / "work";
    std::filesystem::create_directory(_Folder);
    std::filesystem::current_path(_Folder);
}

ToolTest::~ToolTest() {
    std::filesystem::current_path(_Before);
    std::filesystem::remove_all(_Streams);
}

RunResult ToolTest::Run(const std::vector<std::string>& arguments, const std::string& input) const {
    return RunProgram(ZAM_ZAMPRINT_PATH, arguments, input, _Streams / "out");
}

RunResult ToolTest::RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                               const std::string& input, const std::string& outputFile) const {
    const std::string inputFile = _Streams / "in";
    const std::string errorFile = _Streams / "err";
    Write(inputFile, input);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, inputFile.c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, outputFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, errorFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    std::vector<char*> argv = {const_cast<char*>(program.c_str())};
    for (const std::string& argument : arguments) {
        argv.push_back(const_cast<char*>(argument.c_str()));
    }
    argv.push_back(nullptr);

    RunResult result;
    const auto start = std::chrono::steady_clock::now();
    pid_t process = -1;
    int status = -1;
    if (posix_spawnp(&process, program.c_str(), &actions, nullptr, argv.data(), environ) == 0 &&
        waitpid(process, &status, 0) == process) {
        result.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    }
    posix_spawn_file_actions_destroy(&actions);
    result.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    if (std::filesystem::is_regular_file(outputFile)) {
        result.out = Read(outputFile);
    }
    result.err = Read(errorFile);
    return result;
}

void ToolTest::Write(const std::string& name, const std::string& content) {
    std::ofstream(name, std::ios::binary) << content;
}

std::string ToolTest::Read(const std::string& name) {
    std::ostringstream content;
    content << std::ifstream(name, std::ios::binary).rdbuf();
    return content.str();
}

Picture ToolTest::ReadPng(const std::string& bytes) {
    Picture picture;
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_memory(&image, bytes.data(), bytes.size()) != 0) {
        image.format = PNG_FORMAT_RGBA;
        picture.pixels.resize(PNG_IMAGE_SIZE(image));
        if (png_image_finish_read(&image, nullptr, picture.pixels.data(), 0, nullptr) != 0) {
            picture.width = image.width;
            picture.height = image.height;
        }
    }
    png_image_free(&image);
    return picture;
}

std::vector<std::string> ToolTest::List() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(".")) {
        names.push_back(entry.path().filename());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string ToolTest::CheckPdf(const std::string& bytes) const {
    const std::string file = _Streams / "checked.pdf";
    Write(file, bytes);
    const RunResult check = RunProgram("qpdf", {"--check", file}, {}, _Streams / "check");
    EXPECT_EQ(check.status, 0) << check.out << check.err << bytes.size() << " bytes";
    return RunProgram("pdfinfo", {"-rawdates", "-f", "1", "-l", "-1", file}, {}, _Streams / "check").out;
}

std::vector<std::string> ToolTest::Examples() {
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(ZAM_SOURCE_DIR "/examples")) {
        if (entry.path().extension() == ".svg") {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::string MakeDrawing(const std::string& attributes, const std::string& fill) {
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" " + attributes +
           "><rect x=\"0\" y=\"0\" width=\"1000\" height=\"1000\" fill=\"" + fill + "\"/></svg>\n";
}
