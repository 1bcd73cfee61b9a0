// SPDX-License-Identifier: MIT
#include "tools/common/InputFile.h"

#include "framework/base/ZAMLimits.h"
#include "tools/common/Failure.h"
#include "tools/common/FileDescriptor.h"
#include "tools/common/Inflate.h"
#include "tools/common/Options.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::size_t kLargestInput = ZAMLimits::kInputBytes;

int Open(const std::string& file) {
    return file == kStandardStream ? fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 0)
                                   : open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY);
}

// How much room to make at first. One byte more than the size lets the end show without another allocation.
std::size_t GuessSize(int descriptor) {
    constexpr std::size_t kPipe = 65536;
    struct stat status = {};
    const bool known = fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0;
    return known ? std::min(static_cast<std::size_t>(status.st_size), kLargestInput) + 1 : kPipe;
}

// Reads to the end; the errno value of a failure, or 0.
int ReadAll(int descriptor, std::string& content) {
    content.resize(GuessSize(descriptor));
    std::size_t size = 0;
    for (;;) {
        if (size == content.size()) {
            content.resize(std::min(2 * size, kLargestInput + 1));
        }
        const ssize_t count = read(descriptor, content.data() + size, content.size() - size);
        if (count > 0) {
            size += static_cast<std::size_t>(count);
        } else if (count == 0) {
            content.resize(size);
            return 0;
        } else if (errno == EAGAIN) {
            // Whoever gave us the descriptor made it non-blocking: wait for more.
            pollfd more = {descriptor, POLLIN, 0};
            poll(&more, 1, -1);
        } else if (errno != EINTR) {
            return errno;
        }
        if (size > kLargestInput) {
            return EFBIG;
        }
    }
}

} // namespace

std::string GetInputName(const std::string& file) {
    return file == kStandardStream ? "standard input" : file;
}

void RefuseOwnInput(const std::string& input, const std::string& output) {
    std::error_code error;
    if (std::filesystem::is_regular_file(output, error) &&
        std::filesystem::equivalent(input == kStandardStream ? "/dev/stdin" : input, output, error)) {
        throw Failure(ExitStatus::WrongUsage, output + ": the output would replace the input");
    }
}

std::string ReadInputFile(const std::string& file, bool isUnlimited) {
    const FileDescriptor descriptor(Open(file));
    std::string content;
    if (const int error = descriptor.Get() < 0 ? errno : ReadAll(descriptor.Get(), content); error != 0) {
        throw Failure::OfFile(GetInputName(file), error);
    }
    return IsCompressed(content) ? Inflate(content, GetInputName(file), isUnlimited) : content;
}
