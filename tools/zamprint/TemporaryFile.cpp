// SPDX-License-Identifier: MIT
#include "tools/zamprint/TemporaryFile.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

namespace {

// The path of the file as long as it is unfinished; null while there is none.
std::atomic<const char*> unfinishedPath = nullptr;

void RemoveAndEnd(int signal) {
    if (const char* path = unfinishedPath.load()) {
        unlink(path);
    }
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

} // namespace

TemporaryFile::TemporaryFile(std::string target) : _Target(std::move(target)), _Descriptor(Open()) {}

TemporaryFile::~TemporaryFile() {
    if (unfinishedPath.exchange(nullptr) != nullptr) {
        unlink(_Path.c_str());
    }
}

// A name of its own, not made from the target's, which may be as long as names can be.
int TemporaryFile::Open() {
    constexpr int kAttempts = 100;
    const std::filesystem::path folder = std::filesystem::path(_Target).parent_path();
    _Error = EEXIST;
    for (int attempt = 0; attempt < kAttempts && _Error == EEXIST; ++attempt) {
        _Path = folder / (".zamprint-" + std::to_string(getpid()) + "-" + std::to_string(attempt));
        const int descriptor = open(_Path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        _Error = descriptor < 0 ? errno : 0;
        if (_Error == 0) {
            unfinishedPath = _Path.c_str();
            return descriptor;
        }
    }
    return -1;
}

int TemporaryFile::Replace() {
    if (const int error = _Descriptor.Close(); error != 0) {
        return error;
    }
    if (std::rename(_Path.c_str(), _Target.c_str()) != 0) {
        return errno;
    }
    unfinishedPath = nullptr;
    return 0;
}

void TemporaryFile::RemoveOnSignals() {
    for (const int signal : {SIGHUP, SIGINT, SIGTERM}) {
        // One that is ignored stays ignored, as it does below nohup.
        if (std::signal(signal, RemoveAndEnd) == SIG_IGN) {
            std::signal(signal, SIG_IGN);
        }
    }
}
