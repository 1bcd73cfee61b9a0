// SPDX-License-Identifier: MIT
#include "tools/zamprint/Print.h"

#include "framework/model/ZAMPrtModelJson.h"
#include "generators/cairo/ZAMPrintCairoGenerator.h"
#include "tools/zamprint/Document.h"
#include "tools/zamprint/Failure.h"
#include "tools/zamprint/OutputFile.h"
#include "tools/zamprint/PagePrinter.h"
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVG2Interpreter.h"

#include <filesystem>
#include <new>
#include <unistd.h>

namespace {

void RefuseTerminal(const Options& options) {
    if (options.output == kStandardStream && IsBinary(options.GetFormat()) && isatty(STDOUT_FILENO) == 1) {
        throw Failure(ExitStatus::WrongUsage, "standard output is a terminal; name a file with -o FILE");
    }
}

// "-o drawing.svg" is soon typed, and would replace the drawing by its print.
void RefuseOwnInput(const Options& options) {
    const std::filesystem::path input = options.input == kStandardStream ? "/dev/stdin" : options.input;
    std::error_code error;
    if (std::filesystem::is_regular_file(options.output, error) &&
        std::filesystem::equivalent(input, options.output, error)) {
        throw Failure(ExitStatus::WrongUsage, options.output + ": the output would replace the input");
    }
}

void WriteJson(const Document& document, std::ostream& out) {
    const ZAMRef<ZAMPrtModel> model = ZAMNew<ZAMPrtModel>();
    if (!model) {
        throw std::bad_alloc();
    }
    ZAMPrintSVG2Interpreter interpreter(&document.GetRoot());
    interpreter.SetCurrentPath(document.GetPath().c_str());
    ZAMPrintSVGModelDriver driver(model.Get());
    if (interpreter.Decode(&driver) != 1) {
        throw std::bad_alloc();
    }
    ZAMPrtWriteModelAsJson(*model, out);
}

ZAMPrintCairoGenerator::Format ToGeneratorFormat(OutputFormat format) {
    using Format = ZAMPrintCairoGenerator::Format;
    switch (format) {
    case OutputFormat::Ps:
        return Format::Ps;
    case OutputFormat::Eps:
        return Format::Eps;
    case OutputFormat::Svg:
        return Format::Svg;
    case OutputFormat::Png:
        return Format::Png;
    default:
        return Format::Pdf;
    }
}

void WritePages(const Document& document, const Options& options, OutputFile& output) {
    ZAMPrintCairoGenerator generator(ToGeneratorFormat(options.GetFormat()), output.GetStream());
    PagePrinter printer(generator, options);
    if (!printer.Print(document) || !printer.Finish()) {
        // A full disk is the output's failure, and the system says it best.
        output.CheckWritten();
        const std::string reason = generator.GetError();
        throw Failure(ExitStatus::Failed, document.GetName() + ": " + (reason.empty() ? "out of memory" : reason));
    }
}

void RefuseSpent(const Document& document, const ZAMAllocationBudget& budget) {
    if (budget.IsSpent()) {
        throw Failure(ExitStatus::Failed,
                      document.GetName() + ": reuses too many elements; --max-elements N allows more");
    }
}

} // namespace

void Print(const Options& options) {
    RefuseTerminal(options);
    RefuseOwnInput(options);
    const Document document(options.input);
    const ZAMFileAccessPolicy policy = MakePolicy(options.allowedFiles, document.GetPath());
    const ZAMAllocationBudget budget(options.mostElements);
    OutputFile output(options.output);
    if (options.GetFormat() == OutputFormat::Json) {
        WriteJson(document, output.GetStream());
    } else {
        WritePages(document, options, output);
    }
    RefuseSpent(document, budget);
    output.Commit();
}
