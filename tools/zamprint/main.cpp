// SPDX-License-Identifier: MIT
#include "tools/common/Failure.h"
#include "tools/common/Message.h"
#include "tools/zamprint/Check.h"
#include "tools/zamprint/CommandLine.h"
#include "tools/zamprint/OutputFile.h"
#include "tools/zamprint/Print.h"

#include <csignal>
#include <exception>
#include <fcntl.h>
#include <new>
#include <unistd.h>

namespace {

// A standard stream that came closed would lend its number to the next file opened, which would then be read or written
// in its place. It gets a stand-in that cannot be used, so that using it fails as it should.
void OccupyStandardStreams() {
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(descriptor, F_GETFD) < 0) {
            open("/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY);
        }
    }
}

ExitStatus Run(int argc, const char* const* argv) {
    const CommandLine commandLine(argc, argv);
    if (const auto& information = commandLine.GetOptions().information) {
        OutputFile output(kStandardStream);
        output.GetStream() << *information;
        output.Commit();
        return ExitStatus::Printed;
    }
    if (commandLine.GetOptions().isChecked) {
        const CheckResult result = Check(commandLine.GetOptions());
        const bool isGood = result.areAllRead && !(result.hasFindings && commandLine.GetOptions().isStrict);
        return isGood ? ExitStatus::Printed : ExitStatus::Failed;
    }
    return Print(commandLine.GetOptions()) ? ExitStatus::Printed : ExitStatus::Failed;
}

} // namespace

int main(int argc, char** argv) {
    ExitStatus status = ExitStatus::Failed;
    try {
        OccupyStandardStreams();
        // A reader that has gone is a write error with a message, not a silent death.
        std::signal(SIGPIPE, SIG_IGN);
        TemporaryFile::RemoveOnSignals();
        status = Run(argc, argv);
    } catch (const Failure& failure) {
        status = failure.GetStatus();
        PrintMessage(failure.what());
    } catch (const std::bad_alloc&) {
        PrintMessage("out of memory");
    } catch (const std::exception& error) {
        PrintMessage(error.what());
    }
    return static_cast<int>(status);
}
