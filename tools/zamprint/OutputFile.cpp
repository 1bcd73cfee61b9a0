// SPDX-License-Identifier: MIT
#include "tools/zamprint/OutputFile.h"

#include "tools/common/Failure.h"
#include "tools/common/Options.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// The file that would come into being behind a chain of links that leads nowhere yet.
std::filesystem::path FollowDanglingLinks(std::filesystem::path path) {
    std::error_code error;
    while (std::filesystem::is_symlink(path, error)) {
        path = path.parent_path() / std::filesystem::read_symlink(path, error);
    }
    return path;
}

} // namespace

OutputFile::OutputFile(const std::string& file)
    : _Name(file == kStandardStream ? "standard output" : file), _Buffer(Open(file)), _Stream(&_Buffer) {}

void OutputFile::Commit() {
    _Stream.flush();
    CheckWritten();
    Check(_Temporary ? _Temporary->Replace() : _Direct.Close());
}

int OutputFile::Open(const std::string& file) {
    if (file == kStandardStream) {
        return OpenDirectly(fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0));
    }
    struct stat status = {};
    if (stat(file.c_str(), &status) != 0) {
        // A circle of links is no place for a file; that is why only this one error means a new file.
        Check(errno == ENOENT ? 0 : errno);
        return OpenTemporary(FollowDanglingLinks(file));
    }
    if (!S_ISREG(status.st_mode)) {
        return OpenDirectly(open(file.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY));
    }
    // Renaming asks for no right to the file that goes; writing into it would have.
    Check(access(file.c_str(), W_OK) != 0 ? errno : 0);
    return OpenReplacement(std::filesystem::canonical(file), status.st_mode & 0777U);
}

int OutputFile::OpenDirectly(int descriptor) {
    Check(descriptor < 0 ? errno : 0);
    _Direct.Reset(descriptor);
    return descriptor;
}

int OutputFile::OpenTemporary(const std::string& target) {
    _Temporary.emplace(target);
    Check(_Temporary->GetError());
    return _Temporary->GetDescriptor();
}

int OutputFile::OpenReplacement(const std::string& target, mode_t mode) {
    const int descriptor = OpenTemporary(target);
    // It fails only on file systems without permissions, where there are none to keep.
    fchmod(descriptor, mode);
    return descriptor;
}

void OutputFile::Check(int error) const {
    if (error != 0) {
        throw Failure::OfFile(_Name, error);
    }
}
