// SPDX-License-Identifier: MIT
#pragma once

#include <cerrno>
#include <unistd.h>
#include <utility>

/// Owns a file descriptor, or none (below 0).
class FileDescriptor {
public:
    explicit FileDescriptor(int descriptor) : _Descriptor(descriptor) {}
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    ~FileDescriptor() { Close(); }

    [[nodiscard]] int Get() const { return _Descriptor; }
    /// Closes the one before and takes over another.
    void Reset(int descriptor) {
        Close();
        _Descriptor = descriptor;
    }
    /// The errno value of the failure, or 0. Some file systems report only now that a write has failed.
    int Close() { return _Descriptor >= 0 && close(std::exchange(_Descriptor, -1)) != 0 ? errno : 0; }

private:
    int _Descriptor;
};
