// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>
#include <system_error>

/// What the program ends with.
enum class ExitStatus { Printed = 0, Failed = 1, WrongUsage = 2 };

/// Ends the work on a document, or the whole run when the usage was wrong. The text is the message for the user,
/// without the program's name.
class Failure : public std::runtime_error {
public:
    Failure(ExitStatus status, const std::string& message) : std::runtime_error(message), _Status(status) {}
    /// The failure that the system calls `error` (an errno value) on a file.
    static Failure OfFile(const std::string& name, int error) {
        return {ExitStatus::Failed, name + ": " + std::generic_category().message(error)};
    }

    [[nodiscard]] ExitStatus GetStatus() const { return _Status; }

private:
    ExitStatus _Status;
};
