// SPDX-License-Identifier: MIT
#include "tools/zamprint/Completion.h"

#include "tools/zamprint/OptionTable.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

std::vector<std::string> Split(std::string_view text, char separator) {
    std::vector<std::string> parts;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(separator), text.size());
        parts.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return parts;
}

std::string Join(const std::vector<std::string>& parts, std::string_view separator) {
    std::string text;
    for (const std::string& part : parts) {
        text.append(text.empty() ? "" : separator).append(part);
    }
    return text;
}

// An option as completions see it.
struct Option {
    std::vector<std::string> names;
    std::vector<std::string> values; ///< to choose from; those in words of any form are left out
    std::string help;
    bool takesValue;
    bool takesFile;
    bool takesFolder;
};

bool IsWord(std::string_view text) {
    return std::ranges::none_of(text, [](char c) { return c == '.' || c == '[' || c == '#'; });
}

Option MakeOption(const OptionRow& row) {
    const std::string_view value = row.value == nullptr ? "" : row.value;
    Option option{Split(row.names, ','), {}, row.help, !value.empty(), value == "FILE", value == "DIR"};
    if (value.find('|') != std::string_view::npos) {
        option.values = Split(value, '|');
        std::erase_if(option.values, [](const std::string& each) { return !IsWord(each); });
    }
    return option;
}

std::vector<Option> MakeOptions() {
    std::vector<Option> options;
    std::ranges::transform(GetOptionTable(), std::back_inserter(options), MakeOption);
    std::ranges::transform(GetInformationTable(), std::back_inserter(options), MakeOption);
    return options;
}

// In single quotes, for any of the shells.
std::string Quote(std::string_view text) {
    std::string quoted = "'";
    for (const char c : text) {
        quoted += c == '\'' ? "'\\''" : std::string(1, c);
    }
    return quoted + "'";
}

std::string WriteBash() {
    std::string cases;
    std::vector<std::string> names;
    for (const Option& option : MakeOptions()) {
        names.insert(names.end(), option.names.begin(), option.names.end());
        if (option.takesValue) {
            const std::string reply = option.takesFolder ? "compgen -d -- \"$word\""
                                      : option.takesFile ? "compgen -f -- \"$word\""
                                      : option.values.empty()
                                          ? ":"
                                          : "compgen -W " + Quote(Join(option.values, " ")) + " -- \"$word\"";
            cases += "        " + Join(option.names, "|") + ") mapfile -t COMPREPLY < <(" + reply + "); return ;;\n";
        }
    }
    return "_zamprint() {\n"
           "    local word=\"${COMP_WORDS[COMP_CWORD]}\"\n"
           "    case \"${COMP_WORDS[COMP_CWORD - 1]}\" in\n" +
           cases +
           "    esac\n"
           "    if [[ $word == -* ]]; then\n"
           "        mapfile -t COMPREPLY < <(compgen -W " +
           Quote(Join(names, " ")) +
           " -- \"$word\")\n"
           "    else\n"
           "        mapfile -t COMPREPLY < <(compgen -f -X '!*.[sS][vV][gG]*' -- \"$word\"; compgen -d -- \"$word\")\n"
           "    fi\n"
           "}\n"
           "complete -o filenames -F _zamprint zamprint\n";
}

std::string WriteZsh() {
    std::string script = "#compdef zamprint\n_arguments -s \\\n";
    for (const Option& option : MakeOptions()) {
        std::string help = option.help;
        std::erase_if(help, [](char c) { return c == '[' || c == ']' || c == ':'; });
        std::string value;
        if (option.takesValue) {
            value = option.takesFolder      ? ":folder:_files -/"
                    : option.takesFile      ? ":file:_files"
                    : option.values.empty() ? ":value:"
                                            : ":value:(" + Join(option.values, " ") + ")";
        }
        for (const std::string& name : option.names) {
            script.append("    ").append(Quote(std::string(name).append("[").append(help).append("]").append(value)));
            script.append(" \\\n");
        }
    }
    return script + "    '*:drawing:_files -g \"*.(#i)svg(z|)\"'\n";
}

std::string WriteFish() {
    std::string script;
    for (const Option& option : MakeOptions()) {
        script += "complete -c zamprint";
        for (const std::string& name : option.names) {
            script += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
        }
        script += option.takesValue ? option.takesFile || option.takesFolder ? " -r" : " -x" : "";
        script += option.values.empty() ? "" : " -a " + Quote(Join(option.values, " "));
        script += " -d " + Quote(option.help) + "\n";
    }
    return script;
}

} // namespace

std::optional<std::string> WriteCompletion(std::string_view shell) {
    constexpr std::pair<std::string_view, std::string (*)()> kShells[] = {
        {"bash", WriteBash}, {"zsh", WriteZsh}, {"fish", WriteFish}};
    for (const auto& [name, write] : kShells) {
        if (name == shell) {
            return write();
        }
    }
    return std::nullopt;
}
