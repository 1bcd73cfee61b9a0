// SPDX-License-Identifier: MIT
#include "tools/zamprint/CommandLine.h"

#include "tools/common/Failure.h"
#include "tools/zamprint/OptionTable.h"

#include <algorithm>
#include <CLI/CLI.hpp>

namespace {

void AddOption(CLI::App& app, const OptionRow& row, Options& options) {
    if (row.value == nullptr) {
        app.add_flag_callback(
            row.names, [&row, &options] { static_cast<void>(row.read({}, options)); }, row.help);
        return;
    }
    const auto read = [&row, &options](const std::string& text) {
        const std::string wrong = row.read(text, options);
        if (!wrong.empty()) {
            throw Failure(ExitStatus::WrongUsage, std::string(row.names) + " '" + text + "': " + wrong);
        }
    };
    app.add_option_function<std::string>(row.names, read, row.help)
        ->type_name(row.value)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
}

} // namespace

CommandLine::CommandLine(int argc, const char* const* argv) {
    CLI::App app(
        "Prints SVG drawings: as PDF, PostScript, EPS, SVG, as a PNG picture, or as the JSON text of their print "
        "model.\nExit status: 0 all printed, 1 some input failed, 2 wrong usage.",
        "zamprint");
    // Before the options: -h, which is the height here, is the library's own letter for the help.
    app.set_help_flag("--help", "Print this help");
    app.add_option("FILE", _Options.inputs,
                   "SVG documents, also compressed ones (svgz); without any, or for -, standard input")
        ->type_name("");
    for (const OptionRow& row : GetOptionTable()) {
        AddOption(app, row, _Options);
    }
    for (const OptionRow& row : GetInformationTable()) {
        if (row.read != nullptr) {
            AddOption(app, row, _Options);
        }
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        _Options.information = app.help();
    } catch (const CLI::ParseError& error) {
        throw Failure(ExitStatus::WrongUsage, std::string(error.what()) + "; see zamprint --help");
    }
    if (_Options.inputs.empty()) {
        _Options.inputs.emplace_back(kStandardStream);
    }
    if (!_Options.information) {
        Check();
    }
}

// What values cannot say by themselves.
void CommandLine::Check() const {
    struct Rule {
        bool isBroken;
        const char* message;
    };
    const bool hasSides = _Options.width || _Options.height;
    const bool isTogether = _Options.outputDirectory.empty();
    const Rule rules[] = {
        {_Options.paper && hasSides, "--page-size and --width or --height both say how large the page is"},
        {_Options.isLandscape && !_Options.paper, "--landscape turns paper; name one with --page-size"},
        {!isTogether && _Options.output != kStandardStream, "--output and --output-dir both say where to write"},
        {!_Options.isChecked && isTogether && _Options.inputs.size() > 1 && !HasPages(_Options.GetFormat()),
         "several inputs become pages, which only pdf and ps have; give each an output of its own with --output-dir"},
        {_Options.isChecked && (!isTogether || _Options.output != kStandardStream),
         "--check writes to standard output only"},
        {_Options.isChecked && _Options.format && _Options.format != OutputFormat::Json,
         "--check reports as text, or with -f json"},
        {_Options.isStrict && !_Options.isChecked, "--strict goes with --check"},
        {std::ranges::count(_Options.inputs, kStandardStream) > 1, "standard input can be read only once"},
    };
    for (const Rule& rule : rules) {
        if (rule.isBroken) {
            throw Failure(ExitStatus::WrongUsage, rule.message);
        }
    }
}
