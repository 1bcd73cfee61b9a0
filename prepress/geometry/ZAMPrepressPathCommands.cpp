// SPDX-License-Identifier: MIT
#include "prepress/geometry/ZAMPrepressPathCommands.h"

namespace {

constexpr std::size_t kNoCommand = 8;

constexpr std::size_t ArgumentCount(char letter) {
    switch (letter) {
    case 'Z':
    case 'z':
        return 0;
    case 'H':
    case 'h':
    case 'V':
    case 'v':
        return 1;
    case 'M':
    case 'm':
    case 'L':
    case 'l':
    case 'T':
    case 't':
        return 2;
    case 'S':
    case 's':
    case 'Q':
    case 'q':
        return 4;
    case 'C':
    case 'c':
        return 6;
    case 'A':
    case 'a':
        return 7;
    default:
        return kNoCommand;
    }
}

constexpr bool IsMove(char letter) {
    return letter == 'M' || letter == 'm';
}

// The letter of a segment that is given by its arguments alone.
constexpr char CarriedOn(char letter) {
    switch (letter) {
    case 'M':
        return 'L';
    case 'm':
        return 'l';
    default:
        return letter;
    }
}

constexpr bool IsArcFlag(char letter, std::size_t argument) {
    return (letter == 'A' || letter == 'a') && (argument == 3 || argument == 4);
}

} // namespace

bool ZAMPrepressPathCommands::Next(Command& command) {
    _Scanner.SkipSpace();
    if (_Failed || _Scanner.AtEnd()) {
        return false;
    }
    if (!TakeLetter(command) || !TakeArguments(command)) {
        return Fail();
    }
    _Letter = command.letter;
    return true;
}

bool ZAMPrepressPathCommands::TakeLetter(Command& command) {
    const std::string_view rest = _Scanner.GetRest();
    if (ZAMPrepressScanner::IsLetter(rest.front())) {
        command.letter = _Scanner.TakeAny();
        command.written = rest.substr(0, 1);
        command.count = ArgumentCount(command.letter);
        _Scanner.SkipSpace();
        return command.count != kNoCommand && (_Letter != '\0' || IsMove(command.letter));
    }
    command.letter = CarriedOn(_Letter);
    command.written = {};
    command.count = ArgumentCount(command.letter);
    _Scanner.SkipSeparator();
    return command.count != kNoCommand && command.count > 0;
}

bool ZAMPrepressPathCommands::TakeArguments(Command& command) {
    for (std::size_t i = 0; i < command.count; ++i) {
        if (i > 0) {
            _Scanner.SkipSeparator();
        }
        std::string_view& argument = command.arguments[i];
        argument = IsArcFlag(command.letter, i) ? _Scanner.TakeFlag() : _Scanner.TakeNumber();
        if (argument.empty()) {
            return false;
        }
    }
    return true;
}
