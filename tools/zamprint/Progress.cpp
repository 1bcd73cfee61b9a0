// SPDX-License-Identifier: MIT
#include "tools/zamprint/Progress.h"

#include "tools/common/Message.h"

#include <unistd.h>

namespace {

bool IsWanted(const Options& options) {
    if (options.isQuiet || options.progress == ProgressMode::Never) {
        return false;
    }
    return options.progress == ProgressMode::Always || (options.inputs.size() > 1 && isatty(STDERR_FILENO) == 1);
}

} // namespace

Progress::Progress(const Options& options) : _IsShown(IsWanted(options)), _Count(options.inputs.size()) {
    if (_IsShown) {
        BeginStatusLine();
    }
}

Progress::~Progress() {
    if (_IsShown) {
        EndStatusLine();
    }
}

void Progress::Advance(const std::string& name) {
    constexpr std::size_t kWidth = 30;
    ++_Done;
    if (_IsShown) {
        const std::size_t full = kWidth * _Done / _Count;
        std::string bar(1, '[');
        bar.append(full, '#').append(kWidth - full, ' ').append("] ").append(std::to_string(_Done));
        PrintStatus(bar.append("/").append(std::to_string(_Count)).append(" ").append(name));
    }
}
