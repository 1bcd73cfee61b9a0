// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <streambuf>
#include <string_view>

/// Writes what goes through an output stream to a file descriptor, which it borrows, and remembers why that failed.
/// After a failure nothing more is written. The destructor writes nothing: what was not flushed is lost.
class FileDescriptorBuffer : public std::streambuf {
public:
    explicit FileDescriptorBuffer(int descriptor);

    /// The errno value of the first failure, or 0.
    [[nodiscard]] int GetError() const { return _Error; }

protected:
    int_type overflow(int_type character) override;
    std::streamsize xsputn(const char* data, std::streamsize size) override;
    int sync() override;

private:
    bool Flush();
    bool Write(std::string_view data);

    int _Descriptor;
    int _Error = 0;
    std::array<char, 65536> _Buffer;
};
