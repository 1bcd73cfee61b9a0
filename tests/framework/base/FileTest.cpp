// SPDX-License-Identifier: MIT
#include "framework/base/ZAMFile.h"
#include "framework/base/ZAMFileAccessPolicy.h"
#include "framework/base/ZAMFilePath.h"

#include <atomic>
#include <climits>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

// -1 for a file that is not there, else how many bytes it has; all three functions must say the same.
int SizeOf(const std::string& path) {
    ZAMFileInformation information{77, 77};
    std::vector<unsigned char> bytes{77};
    const int stat = ZAMFileStat(path, information);
    EXPECT_EQ(ZAMFileAccess(path, ZAMFileAccessMode::Exists), stat) << path;
    EXPECT_EQ(ZAMFileAccess(path, ZAMFileAccessMode::Read), stat) << path;
    EXPECT_EQ(ZAMReadFile(path, 1000, bytes), stat) << path;
    if (stat == 0) {
        EXPECT_EQ(bytes.size(), information.size) << path;
        return static_cast<int>(information.size);
    }
    EXPECT_TRUE(information.size == 77 && bytes.size() == 1) << path;
    return -1;
}

void WriteFile(const fs::path& path, const std::string& content) {
    std::ofstream(path) << content;
}

// A folder "home" with files and ways out of it, a folder whose name begins alike, and things that are no files.
class FileTest : public testing::Test {
protected:
    void SetUp() override {
        _Before = fs::current_path();
        _Base = fs::canonical(testing::TempDir()) / ("zam-files-" + std::to_string(getpid()));
        fs::create_directories(_Base / "home/below");
        fs::create_directories(_Base / "homeland");
        WriteFile(_Base / "home/a", "1");
        WriteFile(_Base / "home/below/b", "22");
        WriteFile(_Base / "homeland/c", "333");
        WriteFile(_Base / "d", "4444");
        WriteFile(_Base / "home/empty", "");
        fs::create_symlink("below/b", _Base / "home/in");
        fs::create_symlink(_Base / "homeland/c", _Base / "home/out");
        fs::create_directory_symlink("..", _Base / "home/up");
        fs::create_directory_symlink("home", _Base / "link");
        fs::create_symlink("round", _Base / "home/round");
        ASSERT_EQ(mkfifo((_Base / "home/pipe").c_str(), 0600), 0);
        fs::create_symlink("/dev/zero", _Base / "home/zero");
        MakeSocket(_Base / "home/socket");
        fs::current_path(_Base);
    }
    void TearDown() override {
        fs::current_path(_Before);
        fs::remove_all(_Base);
    }

    [[nodiscard]] std::string At(const std::string& name) const { return (_Base / name).string(); }

private:
    static void MakeSocket(const std::string& path) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        ASSERT_LT(path.size(), sizeof address.sun_path);
        path.copy(address.sun_path, path.size());
        const int number = socket(AF_UNIX, SOCK_STREAM, 0);
        EXPECT_EQ(bind(number, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        close(number);
    }

    fs::path _Before;
    fs::path _Base;
};

} // namespace

TEST(FilePathTest, SplitsAndJoins) {
    const struct {
        const char* path;
        const char* directory;
        const char* name;
        const char* joined; // null when they cannot be joined
    } rows[] = {{"a/b.svg", "a", "b.svg", "a/b.svg"},
                {"b.svg", "", "b.svg", "b.svg"},
                {"/b.svg", "/", "b.svg", "/b.svg"},
                {"//b", "/", "b", "/b"},
                {"a//b", "a", "b", "a/b"},
                {"/a/b/c", "/a/b", "c", "/a/b/c"},
                {"a/", "a", "", nullptr},
                {"/", "/", "", nullptr},
                {"", "", "", nullptr},
                {"../b", "..", "b", "../b"}};
    for (const auto& row : rows) {
        ZAMUnicodeString directory("old");
        ZAMUnicodeString name("old");
        ZAMSplitPath(row.path, directory, name);
        EXPECT_EQ(directory.View(), row.directory) << row.path;
        EXPECT_EQ(name.View(), row.name) << row.path;
        ZAMUnicodeString joined("old");
        EXPECT_EQ(ZAMMakePath(directory, name, joined), row.joined == nullptr ? -1 : 0) << row.path;
        EXPECT_EQ(joined.View(), row.joined == nullptr ? "old" : row.joined) << row.path;
    }
    ZAMUnicodeString itself("a/b/c");
    ZAMUnicodeString name;
    ZAMSplitPath(itself, itself, name);
    EXPECT_EQ(std::string(itself.View()) + '|' + std::string(name.View()), "a/b|c");
    EXPECT_EQ(ZAMMakePath(itself, name, itself), 0);
    EXPECT_EQ(itself.View(), "a/b/c");
}

TEST(FilePathTest, RefusesWhatIsNoRelativeName) {
    using namespace std::string_view_literals;
    const std::string half(PATH_MAX / 2, 'x');
    const std::string huge(8'000'000, 'x');
    const std::pair<std::string_view, std::string_view> rows[] = {{"a", "/b"},    {"a", ""},    {"a", "b\0c"sv},
                                                                  {"a\0"sv, "b"}, {half, half}, {"a", huge},
                                                                  {huge, "a"},    {"", "/"},    {"a/", "//b"}};
    for (const auto& [directory, name] : rows) {
        ZAMUnicodeString result("old");
        EXPECT_EQ(ZAMMakePath(directory, name, result), -1) << directory.substr(0, 9) << '|' << name.substr(0, 9);
        EXPECT_EQ(result.View(), "old");
    }
}

TEST_F(FileTest, EachPolicyShowsItsFiles) {
    const struct {
        std::string path;
        int all;
        int home;
    } rows[] = {{"home/a", 1, 1},
                {At("home/a"), 1, 1},
                {"home/empty", 0, 0},
                {"home/below/b", 2, 2},
                {"home/below/../a", 1, 1},
                {"homeland/../home/a", 1, 1},
                {"link/a", 1, 1},
                {"home/in", 2, 2},
                {"home/up/home/a", 1, 1},
                {"home/out", 3, -1},
                {"home/up/d", 4, -1},
                {"home/../d", 4, -1},
                {"homeland/c", 3, -1},
                {At("d"), 4, -1},
                {"home/nowhere", -1, -1},
                {"home/nowhere/../a", -1, -1},
                {"home", -1, -1},
                {"home/", -1, -1},
                {"home/a/", -1, -1},
                {"home/pipe", -1, -1},
                {"home/socket", -1, -1},
                {"home/zero", -1, -1},
                {"home/round", -1, -1},
                {"/dev/zero", -1, -1},
                {"", -1, -1},
                {"./" + std::string(PATH_MAX, '/') + "home/a", -1, -1},
                {std::string("home/a\0", 7), -1, -1},
                {std::string(8'000'000, 'a'), -1, -1}};
    const std::pair<std::function<ZAMFileAccessPolicy()>, int> policies[] = {
        {ZAMFileAccessPolicy::All, 0},
        {[] { return ZAMFileAccessPolicy::OneFolder("home"); }, 1},
        {[] { return ZAMFileAccessPolicy::OneFolder("homeland/../link//."); }, 1},
        {[] { return ZAMFileAccessPolicy::OneFolder("/"); }, 0},
        {[] { return ZAMFileAccessPolicy::OneFolder(""); }, 0},
        {ZAMFileAccessPolicy::None, 2},
        {[] { return ZAMFileAccessPolicy::OneFolder("nowhere"); }, 2},
        {[] { return ZAMFileAccessPolicy::OneFolder("hom"); }, 2},
        {[] { return ZAMFileAccessPolicy::OneFolder("home/a"); }, 2},
        {[] { return ZAMFileAccessPolicy::OneFolder(std::string_view("home\0", 5)); }, 2}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.path.substr(0, 60));
        EXPECT_EQ(SizeOf(row.path), row.all);
        for (const auto& [enter, shown] : policies) {
            const ZAMFileAccessPolicy policy = enter();
            EXPECT_EQ(SizeOf(row.path), shown == 0   ? row.all
                                        : shown == 1 ? row.home
                                                     : -1)
                << "policy " << &enter - &policies[0].first;
        }
    }
}

TEST_F(FileTest, APolicyBelongsToItsThreadAndItsScope) {
    const ZAMFileAccessPolicy outer = ZAMFileAccessPolicy::OneFolder("home");
    {
        const ZAMFileAccessPolicy inner = ZAMFileAccessPolicy::None();
        EXPECT_EQ(SizeOf("home/a"), -1);
        std::thread([] { EXPECT_EQ(SizeOf("d"), 4); }).join();
    }
    EXPECT_EQ(SizeOf("home/a"), 1);
    EXPECT_EQ(SizeOf("d"), -1);
    fs::current_path("homeland"); // the folder stays the one that it was
    EXPECT_EQ(SizeOf("../home/a"), 1);
    EXPECT_EQ(SizeOf("c"), -1);
}

TEST_F(FileTest, ReadsWholeFilesUpToTheLimit) {
    std::string content;
    for (int i = 0; i < 300'000; ++i) {
        content += static_cast<char>(i % 251);
    }
    WriteFile("big", content);
    std::vector<unsigned char> bytes;
    EXPECT_EQ(ZAMReadFile("big", content.size() - 1, bytes), -1);
    EXPECT_EQ(ZAMReadFile("big", content.size(), bytes), 0);
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()), content);
    // Such a file never ends and says that it is empty; nothing of it is read.
    EXPECT_EQ(ZAMReadFile("/proc/self/pagemap", 1000, bytes), 0);
    EXPECT_TRUE(bytes.empty());
}

// Another thread swaps the folder on the way for a link to a forbidden one all the time.
TEST_F(FileTest, WhatIsReadIsWhatWasAllowed) {
    WriteFile("home/below/c", "ok");
    fs::create_directory_symlink("../homeland", "home/evil");
    std::atomic<bool> done = false;
    std::thread swapper([&done] {
        while (!done) {
            EXPECT_EQ(renameat2(AT_FDCWD, "home/below", AT_FDCWD, "home/evil", RENAME_EXCHANGE), 0);
        }
    });
    const ZAMFileAccessPolicy policy = ZAMFileAccessPolicy::OneFolder("home");
    int readings = 0;
    for (int i = 0; i < 20'000; ++i) {
        std::vector<unsigned char> bytes;
        const bool isRead = ZAMReadFile("home/below/c", 10, bytes) == 0;
        readings += isRead ? 1 : 0;
        EXPECT_TRUE(!isRead || std::string(bytes.begin(), bytes.end()) == "ok");
    }
    done = true;
    swapper.join();
    EXPECT_GT(readings, 0);
}
