// SPDX-License-Identifier: MIT
#pragma once

#include "tools/common/FileDescriptor.h"
#include "tools/common/FileDescriptorBuffer.h"
#include "tools/zamprint/TemporaryFile.h"

#include <optional>
#include <ostream>
#include <string>
#include <sys/types.h>

/// Where an output goes. A file appears, or replaces the one before it, only when it is complete: it is written beside
/// its place and renamed. A symbolic link stays and the file behind it is replaced; the permissions of a replaced file
/// stay. Standard output and targets that are no regular files (a device, a pipe) are written directly.
class OutputFile {
public:
    /// "-" is standard output. Throws a Failure when nothing can be written there.
    explicit OutputFile(const std::string& file);

    [[nodiscard]] std::ostream& GetStream() { return _Stream; }
    /// Throws the Failure of a write, if one has failed.
    void CheckWritten() const { Check(_Buffer.GetError()); }
    /// Completes the output; throws a Failure when that cannot be done. A file that is never completed is discarded.
    void Commit();

private:
    int Open(const std::string& file);
    int OpenDirectly(int descriptor);
    int OpenTemporary(const std::string& target);
    int OpenReplacement(const std::string& target, mode_t mode);
    void Check(int error) const;

    std::string _Name;
    FileDescriptor _Direct{-1};
    std::optional<TemporaryFile> _Temporary;
    FileDescriptorBuffer _Buffer;
    std::ostream _Stream;
};
