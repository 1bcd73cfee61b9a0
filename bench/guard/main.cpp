// SPDX-License-Identifier: MIT
// bench_guard model|pdf FILE
// Does once what script/bench --guard counts the instructions of: a document made a print model as zamprint makes it,
// or that model made a PDF. Counted is what Measured calls; the other step is done beside it.
#include "bench/documents/Documents.h"
#include "framework/print/ZAMPrintModelRender.h"
#include "generators/cairo/ZAMPrintCairoGenerator.h"

#include <cstdio>
#include <exception>
#include <functional>
#include <span>
#include <sstream>
#include <stdexcept>
#include <string_view>

/// A name of its own, which the counter begins and ends with.
extern "C" [[gnu::noinline]] void Measured(const std::function<void()>& step) {
    step();
}

namespace {

void WritePdf(const ZAMPrtModel& model, std::ostream& out) {
    ZAMPrintParameters parameters;
    parameters.metadata.creationTime = 0;
    ZAMPrintCairoGenerator generator(ZAMPrintCairoGenerator::Format::Pdf, out);
    if (ZAMPrintModelRender(&model, &generator, parameters).Draw() != 1) {
        throw std::runtime_error(generator.GetError());
    }
}

// Both steps are done once before: what a process does the first time, the search for functions above all, is not
// counted.

void CountModel(const std::string& text) {
    const auto makeModel = [&] { static_cast<void>(DecodeDocument(PrepareDocument(ParseDocument(text)))); };
    makeModel();
    Measured(makeModel);
}

void CountPdf(const std::string& text) {
    const auto model = DecodeDocument(PrepareDocument(ParseDocument(text)));
    std::ostringstream out;
    WritePdf(*model, out);
    Measured([&] { WritePdf(*model, out); });
}

} // namespace

int main(int count, char** values) {
    const std::span arguments(values, static_cast<std::size_t>(count));
    const std::string_view step = arguments.size() == 3 ? arguments[1] : "";
    if (step != "model" && step != "pdf") {
        std::fputs("usage: bench_guard model|pdf FILE\n", stderr);
        return 2;
    }
    try {
        const Documents documents(arguments[2]);
        (step == "model" ? CountModel : CountPdf)(documents.GetTexts().front());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "bench_guard: %s\n", error.what());
        return 1;
    }
    return 0;
}
