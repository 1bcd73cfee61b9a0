// SPDX-License-Identifier: MIT
#include "tools/common/Failure.h"
#include "tools/common/FileDescriptorBuffer.h"
#include "tools/common/InputFile.h"
#include "tools/common/Message.h"
#include "tools/cups/PrintJob.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <exception>
#include <new>
#include <sys/ioctl.h>
#include <thread>
#include <unistd.h>

namespace {

// One line of the scheduler's log; an ERROR is also what the queue shows.
void Tell(const std::string& level, const std::string& text) {
    std::fputs((level + ": " + WithoutControls(text) + "\n").c_str(), stderr);
}

// The scheduler tells of a failed filter, and not of the reason, when it hears of the filter's end before it has read
// the reason. So this waits until the pipe behind standard error is empty, for a second at most.
void AwaitReader() {
    int unread = 0;
    for (int i = 0; i < 100 && ioctl(STDERR_FILENO, FIONREAD, &unread) == 0 && unread > 0; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

// Who prints knows the document by the job's title, not by its file in the spool.
std::string CallByTitle(const std::string& message, const FilterJob& job) {
    const std::string name = GetInputName(job.input);
    const bool isOfDocument = !job.title.empty() && message.starts_with(name + ":");
    return isOfDocument ? job.title + message.substr(name.size()) : message;
}

// Only a whole document is written: what follows never prints half of one.
void WriteOut(const std::string& pdf) {
    FileDescriptorBuffer output(STDOUT_FILENO);
    output.sputn(pdf.data(), static_cast<std::streamsize>(pdf.size()));
    output.pubsync();
    if (output.GetError() != 0) {
        throw Failure::OfFile("standard output", output.GetError());
    }
}

void Run(const FilterJob& job) {
    const std::string pdf = PrintJob(job);
    WriteOut(pdf);
    Tell("DEBUG", "printed to " + std::to_string(pdf.size()) + " bytes of PDF");
}

} // namespace

int main(int argc, char** argv) {
    // A cancelled job ends at once; there is nothing to tidy up. A reader that has gone is an error with a message.
    std::signal(SIGTERM, SIG_DFL);
    std::signal(SIGPIPE, SIG_IGN);
    std::string failure;
    FilterJob job;
    try {
        if (const auto asked = ReadFilterJob({argv, static_cast<std::size_t>(argc)})) {
            job = *asked;
            Run(job);
        } else {
            failure = "usage: zamsvgtopdf job user title copies options [file]";
        }
    } catch (const std::bad_alloc&) {
        failure = "out of memory";
    } catch (const std::exception& error) {
        failure = CallByTitle(error.what(), job);
    }
    if (!failure.empty()) {
        Tell("ERROR", failure);
        AwaitReader();
    }
    return failure.empty() ? 0 : 1;
}
