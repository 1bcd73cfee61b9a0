// SPDX-License-Identifier: MIT
#include "framework/base/ZAMFile.h"

#include "framework/base/ZAMFileAccessPolicy.h"
#include "framework/base/ZAMFilePath.h"

#include <array>
#include <cerrno>
#include <climits>
#include <exception>
#include <fcntl.h>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class Descriptor {
public:
    explicit Descriptor(int number) : _Number(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (_Number >= 0) {
            close(_Number);
        }
    }

    [[nodiscard]] int Get() const { return _Number; }

private:
    int _Number;
};

// What the system is to be asked for; empty when the policy forbids the path.
std::string AllowedPath(std::string_view path) {
    if (ZAMFileAccessPolicy::AllowsNone() || !ZAMIsPossiblePath(path)) {
        return {};
    }
    if (ZAMFileAccessPolicy::AllowsAll()) {
        return std::string(path);
    }
    std::string resolved = ZAMResolvePath(path);
    return ZAMFileAccessPolicy::AllowsResolved(resolved) ? resolved : std::string();
}

struct AllowedFile {
    std::string path;
    struct stat status;
};

std::optional<AllowedFile> FindFile(std::string_view path) {
    AllowedFile file{AllowedPath(path), {}};
    if (file.path.empty() || stat(file.path.c_str(), &file.status) != 0 || !S_ISREG(file.status.st_mode)) {
        return {};
    }
    return file;
}

// Folders on the way may have become links since the path was resolved; the system knows what is open.
bool IsOpenFileAllowed(int descriptor) {
    if (ZAMFileAccessPolicy::AllowsAll()) {
        return true;
    }
    std::array<char, PATH_MAX> path{};
    const ssize_t length =
        readlink(("/proc/self/fd/" + std::to_string(descriptor)).c_str(), path.data(), path.size() - 1);
    return length > 0 && ZAMFileAccessPolicy::AllowsResolved({path.data(), static_cast<std::size_t>(length)});
}

// As many bytes as the file had when it was opened, fewer when it shrinks.
bool ReadAll(int descriptor, std::vector<unsigned char>& bytes) {
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        const ssize_t count = read(descriptor, bytes.data() + filled, bytes.size() - filled);
        if (count < 0 && errno != EINTR) {
            return false;
        }
        if (count == 0) {
            break;
        }
        filled += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    bytes.resize(filled);
    return true;
}

bool ReadFile(std::string_view path, std::size_t mostBytes, std::vector<unsigned char>& bytes) {
    const std::optional<AllowedFile> file = FindFile(path);
    if (!file) {
        return false;
    }
    const Descriptor descriptor(open(file->path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    struct stat status {};
    if (descriptor.Get() < 0 || fstat(descriptor.Get(), &status) != 0 || !S_ISREG(status.st_mode) ||
        static_cast<std::uint64_t>(status.st_size) > mostBytes || !IsOpenFileAllowed(descriptor.Get())) {
        return false;
    }
    std::vector<unsigned char> content(static_cast<std::size_t>(status.st_size));
    if (!ReadAll(descriptor.Get(), content)) {
        return false;
    }
    bytes.swap(content);
    return true;
}

} // namespace

int ZAMFileStat(std::string_view path, ZAMFileInformation& information) {
    try {
        const std::optional<AllowedFile> file = FindFile(path);
        if (!file) {
            return -1;
        }
        information = {static_cast<std::uint64_t>(file->status.st_size), file->status.st_mtime};
        return 0;
    } catch (const std::exception&) {
        return -1;
    }
}

int ZAMFileAccess(std::string_view path, ZAMFileAccessMode mode) {
    try {
        const std::optional<AllowedFile> file = FindFile(path);
        return file && access(file->path.c_str(), mode == ZAMFileAccessMode::Read ? R_OK : F_OK) == 0 ? 0 : -1;
    } catch (const std::exception&) {
        return -1;
    }
}

int ZAMReadFile(std::string_view path, std::size_t mostBytes, std::vector<unsigned char>& bytes) {
    try {
        return ReadFile(path, mostBytes, bytes) ? 0 : -1;
    } catch (const std::exception&) {
        return -1;
    }
}
