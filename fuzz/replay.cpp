// SPDX-License-Identifier: MIT
// Gives files to a fuzz target, where there is no fuzzer: the program's arguments, and all files in those that are
// folders. Each has memory of its own, so that the sanitizers see its end.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void Replay(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::vector<char> bytes{std::istreambuf_iterator<char>(stream), {}};
    bytes.shrink_to_fit();
    std::puts(file.c_str()); // the last one in the log is the one that failed
    std::fflush(stdout);
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

} // namespace

int main(int argc, char** argv) {
    std::vector<std::filesystem::path> files;
    for (const char* name : std::vector<const char*>(argv + 1, argv + argc)) {
        if (std::filesystem::is_directory(name)) {
            std::ranges::copy_if(std::filesystem::recursive_directory_iterator(name), std::back_inserter(files),
                                 [](const auto& entry) { return entry.is_regular_file(); });
        } else {
            files.emplace_back(name);
        }
    }
    std::ranges::sort(files);
    std::ranges::for_each(files, Replay);
    return files.empty() ? 1 : 0; // a folder that has moved is to be seen
}
