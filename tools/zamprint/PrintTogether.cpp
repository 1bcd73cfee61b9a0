// SPDX-License-Identifier: MIT
#include "tools/zamprint/PrintTogether.h"

#include "framework/model/ZAMPrtModelJson.h"
#include "generators/cairo/ZAMPrintCairoGenerator.h"
#include "tools/common/Document.h"
#include "tools/common/Failure.h"
#include "tools/common/Message.h"
#include "tools/common/PagePrinter.h"
#include "tools/zamprint/OutputFile.h"
#include "ZAMPrtInterpreterSVG/interpreter/ZAMPrintSVG2Interpreter.h"

#include <new>

namespace {

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

void RefuseSpent(const Document& document, const ZAMAllocationBudget& budget) {
    if (budget.HasLongPath()) {
        throw Failure(ExitStatus::Failed,
                      document.GetName() + ": has a path of more than 10000000 commands; --unlimited prints it");
    }
    if (budget.IsSpent()) {
        throw Failure(ExitStatus::Failed,
                      document.GetName() + ": reuses too many elements; --max-elements N allows more");
    }
}

void WriteJson(const std::string& input, const Options& options, std::ostream& out) {
    // Preparing a document reads pictures and reuses elements, too.
    const ZAMFileAccessPolicy policy = MakePolicy(options.allowedFiles, Document::PathOf(input));
    const ZAMAllocationBudget budget(options.mostElements, options.GetMostPathCommands());
    const Document document(input, options);
    RefuseSpent(document, budget);
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
    RefuseSpent(document, budget);
    ZAMPrtWriteModelAsJson(*model, out);
}

// The pages of one output.
class Pages {
public:
    Pages(OutputFile& output, const Options& options)
        : _Output(output), _Options(options), _Generator(ToGeneratorFormat(options.GetFormat()), output.GetStream()),
          _Printer(_Generator, options) {}

    // Throws a Failure; GetError then says whether the output can go on.
    void Add(const std::string& input) {
        const ZAMFileAccessPolicy policy = MakePolicy(_Options.allowedFiles, Document::PathOf(input));
        const ZAMAllocationBudget budget(_Options.mostElements, _Options.GetMostPathCommands());
        const Document document(input, _Options);
        if (!_Printer.Print(document, [&] { RefuseSpent(document, budget); })) {
            Fail(document.GetName());
        }
        _HasPages = true;
    }
    [[nodiscard]] bool HasPages() const { return _HasPages; }
    [[nodiscard]] bool HasFailed() const { return !_Generator.GetError().empty(); }

    void Finish(const std::string& name) {
        if (!_Printer.Finish()) {
            Fail(name);
        }
    }

private:
    [[noreturn]] void Fail(const std::string& name) {
        // A full disk is the output's failure, and the system says it best.
        _Output.CheckWritten();
        const std::string reason = _Generator.GetError();
        throw Failure(ExitStatus::Failed, name + ": " + (reason.empty() ? "out of memory" : reason));
    }

    OutputFile& _Output;
    const Options& _Options;
    ZAMPrintCairoGenerator _Generator;
    PagePrinter _Printer;
    bool _HasPages = false;
};

} // namespace

bool PrintTogether(std::span<const std::string> inputs, const std::string& output, const Options& options,
                   const std::function<void(const std::string&)>& ended) {
    OutputFile file(output);
    bool isComplete = true;
    if (options.GetFormat() == OutputFormat::Json) {
        WriteJson(inputs.front(), options, file.GetStream());
        ended(inputs.front());
    } else {
        Pages pages(file, options);
        for (std::size_t i = 0; i < inputs.size(); ++i) {
            try {
                pages.Add(inputs[i]);
            } catch (const Failure& failure) {
                const bool isLast = i + 1 == inputs.size();
                if (pages.HasFailed() || (isLast && !pages.HasPages())) {
                    throw;
                }
                PrintMessage(failure.what());
                isComplete = false;
            }
            ended(inputs[i]);
        }
        pages.Finish(inputs.back());
    }
    file.Commit();
    return isComplete;
}
