// SPDX-License-Identifier: MIT
#include "tests/framework/visualisation/FontSetup.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// A filter that selects nothing would pass as well.
bool IsTest(const std::string& name) {
    const testing::UnitTest& all = *testing::UnitTest::GetInstance();
    for (int i = 0; i < all.total_test_suite_count(); ++i) {
        const testing::TestSuite& suite = *all.GetTestSuite(i);
        for (int j = 0; j < suite.total_test_count(); ++j) {
            if (name == std::string(suite.name()) + '.' + suite.GetTestInfo(j)->name()) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

bool PassesAlone(const std::string& test, const std::string& program) {
    const std::string self = std::filesystem::read_symlink("/proc/self/exe");
    const std::string path = program == "/proc/self/exe" ? self : program;
    const pid_t child = fork();
    if (child == 0) {
        const std::string filter = "--gtest_filter=" + test;
        execl(path.c_str(), path.c_str(), filter.c_str(), "--gtest_also_run_disabled_tests", nullptr);
        _exit(127);
    }
    int status = -1;
    return IsTest(test) && child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) &&
           WEXITSTATUS(status) == 0;
}
