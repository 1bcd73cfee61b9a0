// SPDX-License-Identifier: MIT
#include "tools/cups/PrintJob.h"

#include "framework/base/ZAMAllocationBudget.h"
#include "generators/cairo/ZAMPrintCairoGenerator.h"
#include "tools/common/Document.h"
#include "tools/common/Failure.h"
#include "tools/common/Options.h"
#include "tools/common/PagePrinter.h"

#include <sstream>

namespace {

[[noreturn]] void Fail(const Document& document, const std::string& reason) {
    throw Failure(ExitStatus::Failed, document.GetName() + ": " + (reason.empty() ? "out of memory" : reason));
}

Options MakeOptions() {
    Options options;
    options.allowedFiles = AllowedFiles::None;
    options.isQuiet = true;
    return options;
}

} // namespace

// In memory, not in a file, of which nothing would be left to remove when the job is cancelled.
std::string PrintJob(const FilterJob& job) {
    const ZAMFileAccessPolicy noFiles = ZAMFileAccessPolicy::None();
    const ZAMAllocationBudget budget;
    Options options = MakeOptions();
    const Document document(job.input, options);
    if (document.GetTitle().empty()) {
        options.title = job.title;
    }

    std::ostringstream pdf;
    ZAMPrintCairoGenerator generator(ZAMPrintCairoGenerator::Format::Pdf, pdf);
    PagePrinter printer(generator, options);
    const auto refuseSpent = [&] {
        if (budget.HasLongPath()) {
            Fail(document, "has a path of too many commands");
        }
        if (budget.IsSpent()) {
            Fail(document, "reuses too many elements");
        }
    };
    if (!printer.Print(document, refuseSpent) || !printer.Finish()) {
        Fail(document, generator.GetError());
    }
    if (!printer.HasMarks()) {
        Fail(document, "has nothing that can be drawn; pictures in files are not read");
    }
    return std::move(pdf).str();
}
