// SPDX-License-Identifier: MIT
// Each golden/<rewrite>/name.svg is rewritten, by the rewrites up to that of its folder, or by all where the folder has
// another name, and compared with name.out.svg beside it. With ZAM_REGENERATE=1 in the environment that is written anew
// instead: read the difference before keeping it.
#include "tests/prepress/Documents.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <vector>

namespace {

namespace fs = std::filesystem;

const fs::path kFolder = fs::path(ZAM_SOURCE_DIR) / "tests/prepress/golden";
constexpr std::string_view kResultEnding = ".out.svg";

std::vector<std::string> Documents() {
    std::vector<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(kFolder)) {
        const std::string name = fs::relative(entry.path(), kFolder).string();
        if (name.ends_with(".svg") && !name.ends_with(kResultEnding)) {
            names.push_back(name);
        }
    }
    std::ranges::sort(names);
    return names;
}

std::string ReadFile(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

class PrepressGolden : public testing::TestWithParam<std::string> {};

TEST_P(PrepressGolden, Document) {
    const fs::path document = kFolder / GetParam();
    const fs::path golden = fs::path(document).replace_extension(kResultEnding);
    const std::string xml = RewriteUpTo(fs::path(GetParam()).parent_path().string(), ReadFile(document));
    if (const char* const regenerate = std::getenv("ZAM_REGENERATE"); regenerate != nullptr && regenerate[0] == '1') {
        std::ofstream(golden, std::ios::binary) << xml;
        return;
    }
    const std::string expected = ReadFile(golden);
    ASSERT_FALSE(expected.empty()) << golden << " is missing";
    EXPECT_EQ(xml, expected);
}

INSTANTIATE_TEST_SUITE_P(Documents, PrepressGolden, testing::ValuesIn(Documents()), [](const auto& tested) {
    std::string name = tested.param;
    std::ranges::replace_if(
        name, [](char c) { return std::isalnum(static_cast<unsigned char>(c)) == 0; }, '_');
    return name;
});

} // namespace
