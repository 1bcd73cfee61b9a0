// SPDX-License-Identifier: MIT
#include "tools/zamprint/CommandLine.h"

#include "tools/zamprint/Failure.h"
#include "tools/zamprint/OptionTable.h"

#include <CLI/CLI.hpp>

namespace {

void AddOption(CLI::App& app, const OptionRow& row, Options& options) {
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
    CLI::App app("Prints SVG drawings: as PDF, as a PNG picture, or as the JSON text of their print model.\n"
                 "Exit status: 0 printed, 1 the input failed, 2 wrong usage.",
                 "zamprint");
    // Before the options: -h, which is the height here, is the library's own letter for the help.
    app.set_help_flag("--help", "Print this help");
    app.set_version_flag("--version", "zamprint " ZAM_VERSION, "Print the version");
    app.add_option("FILE", _Options.input, "The SVG document; without it, or for -, standard input")->type_name("");
    for (const OptionRow& row : GetOptionTable()) {
        AddOption(app, row, _Options);
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        _Information = app.help();
    } catch (const CLI::CallForVersion& version) {
        _Information = std::string(version.what()) + "\n";
    } catch (const CLI::ParseError& error) {
        throw Failure(ExitStatus::WrongUsage, std::string(error.what()) + "; see zamprint --help");
    }
}
