// SPDX-License-Identifier: MIT
#include "tools/zamprint/Print.h"

#include "tools/common/Failure.h"
#include "tools/common/InputFile.h"
#include "tools/zamprint/PrintApart.h"
#include "tools/zamprint/PrintTogether.h"
#include "tools/zamprint/Progress.h"

#include <algorithm>
#include <unistd.h>

namespace {

void RefuseTerminal(const Options& options) {
    if (options.output == kStandardStream && IsBinary(options.GetFormat()) && isatty(STDOUT_FILENO) == 1) {
        throw Failure(ExitStatus::WrongUsage, "standard output is a terminal; name a file with -o FILE");
    }
}

} // namespace

bool Print(const Options& options) {
    Progress progress(options);
    if (!options.outputDirectory.empty()) {
        return PrintApart(options, progress);
    }
    RefuseTerminal(options);
    std::ranges::for_each(options.inputs, [&](const std::string& input) { RefuseOwnInput(input, options.output); });
    return PrintTogether(options.inputs, options.output, options,
                         [&](const std::string& input) { progress.Advance(GetInputName(input)); });
}
