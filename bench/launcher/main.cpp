// SPDX-License-Identifier: MIT
// measure_process COMMAND [ARGUMENT...]
// Runs the command and writes its wall time and CPU time in seconds and its peak memory in KiB. What the command writes
// to standard output is lost. A program of its own, because a process begins with the peak of the one that starts it:
// this one is smaller than anything it measures. Exit status: that of the command, or 127.
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <span>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

double ToSeconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

bool Start(char** command, pid_t& child) {
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    const int error = posix_spawnp(&child, command[0], &actions, nullptr, command, environ);
    posix_spawn_file_actions_destroy(&actions);
    return error == 0;
}

} // namespace

int main(int count, char** values) {
    const std::span arguments(values, static_cast<std::size_t>(count));
    if (arguments.size() < 2) {
        std::fputs("usage: measure_process COMMAND [ARGUMENT...]\n", stderr);
        return 2;
    }
    const auto begin = std::chrono::steady_clock::now();
    pid_t child = -1;
    int status = 0;
    rusage usage{};
    if (!Start(arguments.subspan(1).data(), child) || wait4(child, &status, 0, &usage) != child) {
        std::fprintf(stderr, "measure_process: %s cannot be run\n", arguments[1]);
        return 127;
    }
    const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - begin;
    std::printf("%.6f %.6f %ld\n", wall.count(), ToSeconds(usage.ru_utime) + ToSeconds(usage.ru_stime),
                usage.ru_maxrss);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 127;
}
