// SPDX-License-Identifier: MIT
#include "tools/zamprint/Workers.h"

#include "tools/common/FileDescriptor.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <new>
#include <span>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using Task = std::function<bool(std::size_t)>;
using Ended = std::function<void(std::size_t, TaskResult)>;

// What a process tells of a task. It is shorter than PIPE_BUF, so reports do not mix.
struct Report {
    std::size_t number;
    TaskResult result;
};

[[noreturn]] void ThrowSystemError(const char* what) {
    throw std::system_error(errno, std::generic_category(), what);
}

// The next task, in memory that the processes share.
class SharedCounter {
public:
    SharedCounter()
        : _Memory(mmap(nullptr, sizeof(Counter), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)) {
        if (_Memory == MAP_FAILED) {
            ThrowSystemError("no memory for the tasks");
        }
        new (_Memory) Counter(0);
    }
    SharedCounter(const SharedCounter&) = delete;
    SharedCounter& operator=(const SharedCounter&) = delete;
    ~SharedCounter() { munmap(_Memory, sizeof(Counter)); }

    std::size_t Take() { return static_cast<Counter*>(_Memory)->fetch_add(1); }
    [[nodiscard]] std::size_t Get() const { return static_cast<Counter*>(_Memory)->load(); }

private:
    using Counter = std::atomic<std::size_t>;
    static_assert(Counter::is_always_lock_free);

    void* _Memory;
};

class Pool {
public:
    Pool(std::size_t count, const Task& task, const Ended& ended) : _Task(task), _Ended(ended), _IsEnded(count) {}

    // A process that crashes takes one task with it; new processes do what is left.
    void Run(std::size_t processes) {
        while (_Counter.Get() < _IsEnded.size()) {
            RunProcesses(processes);
        }
    }

private:
    void RunProcesses(std::size_t processes) {
        int ends[2] = {-1, -1};
        if (pipe(ends) != 0) {
            ThrowSystemError("no pipe for the tasks");
        }
        const FileDescriptor reading(ends[0]);
        FileDescriptor writing(ends[1]);
        const std::vector<pid_t> children = Start(processes, ends[1]);
        writing.Close();
        ReadReports(reading.Get());
        for (const pid_t child : children) {
            waitpid(child, nullptr, 0);
        }
        const std::size_t begun = std::min(_Counter.Get(), _IsEnded.size());
        for (std::size_t number = 0; number < begun; ++number) {
            End(number, TaskResult::Crashed);
        }
    }

    std::vector<pid_t> Start(std::size_t processes, int writing) {
        std::vector<pid_t> children;
        for (std::size_t i = 0; i < processes; ++i) {
            const pid_t child = fork();
            if (child == 0) {
                Work(writing);
            }
            if (child > 0) {
                children.push_back(child);
            } else if (children.empty()) {
                ThrowSystemError("no process for the tasks");
            }
        }
        return children;
    }

    // In a process of its own, which ends with the one that waits for it.
    [[noreturn]] void Work(int writing) {
        prctl(PR_SET_PDEATHSIG, SIGTERM);
        for (std::size_t number = _Counter.Take(); number < _IsEnded.size(); number = _Counter.Take()) {
            const Report report{number, _Task(number) ? TaskResult::Done : TaskResult::Failed};
            if (write(writing, &report, sizeof(report)) != static_cast<ssize_t>(sizeof(report))) {
                break;
            }
        }
        _exit(0);
    }

    void ReadReports(int reading) {
        std::array<Report, 256> reports{};
        for (;;) {
            const ssize_t size = read(reading, reports.data(), sizeof(reports));
            if (size == 0 || (size < 0 && errno != EINTR)) {
                return;
            }
            const std::size_t count = size < 0 ? 0 : static_cast<std::size_t>(size) / sizeof(Report);
            for (const Report& report : std::span(reports).first(count)) {
                End(report.number, report.result);
            }
            // Who wakes for every task takes a processor from those who do them.
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
    }

    void End(std::size_t number, TaskResult result) {
        if (!_IsEnded[number]) {
            _IsEnded[number] = true;
            _Ended(number, result);
        }
    }

    const Task& _Task;
    const Ended& _Ended;
    SharedCounter _Counter;
    std::vector<bool> _IsEnded;
};

} // namespace

void RunTasks(std::size_t count, std::size_t processes, const Task& task, const Ended& ended) {
    if (std::min(count, processes) > 1) {
        Pool(count, task, ended).Run(std::min(count, processes));
        return;
    }
    for (std::size_t number = 0; number < count; ++number) {
        ended(number, task(number) ? TaskResult::Done : TaskResult::Failed);
    }
}
