// SPDX-License-Identifier: MIT
#pragma once

#include "tools/common/FileDescriptor.h"

#include <string>

/// A new file in the folder of a target that it is to replace. Unless that happens it is removed with the object, and
/// when SIGHUP, SIGINT or SIGTERM ends the program. There is one at a time.
class TemporaryFile {
public:
    /// The file gets the permissions of any new file. Look at the error first.
    explicit TemporaryFile(std::string target);
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    /// The errno value that says why there is no file, or 0.
    [[nodiscard]] int GetError() const { return _Error; }
    [[nodiscard]] int GetDescriptor() const { return _Descriptor.Get(); }

    /// Closes the file and gives it the target's name, in place of what had it. The errno value of the failure, or 0.
    int Replace();

    /// To be called once, before the first file: lets the signals remove it.
    static void RemoveOnSignals();

private:
    int Open();

    std::string _Target;
    std::string _Path;
    int _Error = 0;
    FileDescriptor _Descriptor;
};
