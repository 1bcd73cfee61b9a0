// SPDX-License-Identifier: MIT
#include "tools/zamprint/PrintApart.h"

#include "tools/common/Failure.h"
#include "tools/common/InputFile.h"
#include "tools/common/Message.h"
#include "tools/zamprint/PrintTogether.h"
#include "tools/zamprint/Workers.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <new>
#include <set>
#include <thread>
#include <vector>

namespace {

std::string NameOutput(const std::string& input, const Options& options) {
    std::filesystem::path name = input == kStandardStream ? "stdin" : std::filesystem::path(input).filename();
    name.replace_extension(GetFormatName(options.GetFormat()));
    return std::filesystem::path(options.outputDirectory) / name;
}

std::vector<std::string> NameOutputs(const Options& options) {
    std::vector<std::string> outputs;
    std::set<std::string> known;
    for (const std::string& input : options.inputs) {
        outputs.push_back(NameOutput(input, options));
        if (!known.insert(outputs.back()).second) {
            throw Failure(ExitStatus::WrongUsage,
                          GetInputName(input) + ": another input is printed to " + outputs.back() + " already");
        }
        RefuseOwnInput(input, outputs.back());
    }
    return outputs;
}

void MakeDirectory(const std::string& directory) {
    std::error_code error;
    std::filesystem::create_directories(directory, error);
    if (error) {
        throw Failure(ExitStatus::Failed, directory + ": " + error.message());
    }
}

// Messages are the whole answer: the process may be another one.
bool PrintOne(const std::string& input, const std::string& output, const Options& options) {
    try {
        return PrintTogether({&input, 1}, output, options, [](const std::string&) {});
    } catch (const std::bad_alloc&) {
        PrintMessage(GetInputName(input) + ": out of memory");
    } catch (const std::exception& failure) {
        PrintMessage(failure.what());
    }
    return false;
}

} // namespace

bool PrintApart(const Options& options, Progress& progress) {
    const std::vector<std::string> outputs = NameOutputs(options);
    MakeDirectory(options.outputDirectory);
    const std::size_t processors = std::max(1U, std::thread::hardware_concurrency());
    bool areAllDone = true;
    RunTasks(
        options.inputs.size(), options.jobs == 0 ? processors : options.jobs,
        [&](std::size_t number) { return PrintOne(options.inputs[number], outputs[number], options); },
        [&](std::size_t number, TaskResult result) {
            areAllDone = areAllDone && result == TaskResult::Done;
            if (result == TaskResult::Crashed) {
                PrintMessage(GetInputName(options.inputs[number]) + ": the program has crashed");
            }
            progress.Advance(GetInputName(options.inputs[number]));
        });
    return areAllDone;
}
