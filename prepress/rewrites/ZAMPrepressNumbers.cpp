// SPDX-License-Identifier: MIT
#include "prepress/rewrites/ZAMPrepressNumbers.h"

#include "prepress/geometry/ZAMPrepressLength.h"
#include "prepress/geometry/ZAMPrepressPathCommands.h"
#include "prepress/geometry/ZAMPrepressTransform.h"
#include "prepress/rewrites/ZAMPrepressNumberSinks.h"

namespace {

// A line to where the path stands: it shows nowhere but in what becomes of its neighbours.
constexpr std::string_view kNowhere = "h0";

constexpr bool IsCurve(char kind) {
    return kind == 'C' || kind == 'S' || kind == 'Q' || kind == 'T' || kind == 'A';
}

// Each syntax walks a text with a sink; `filled` is whether the element may have a fill. False when the text is void as
// a whole.

// Two cases need a line to nowhere. A subpath that is closed where it began is a dot under a round cap, but a single
// point makes no piece. A filled figure of at most two vertices is taken apart, though a curve encloses an area.
struct PathData {
    static constexpr ZAMPrepressListSyntax kSyntax{" ,", true};

    template <class Sink> static bool Walk(std::string_view data, bool filled, Sink& sink) {
        constexpr std::size_t kVerticesWithoutArea = 2;
        ZAMPrepressPathCommands commands(data);
        std::size_t vertices = 0;
        char lastKind = '\0';
        for (ZAMPrepressPathCommands::Command command; commands.Next(command); ++vertices) {
            const char kind = command.GetKind();
            if (kind == 'Z' && lastKind == 'M') {
                sink.Insert(kNowhere);
            }
            WalkCommand(command, sink);
            lastKind = kind;
        }
        if (filled && vertices <= kVerticesWithoutArea && IsCurve(lastKind)) {
            sink.Insert(kNowhere);
        }
        if (commands.HasFailed()) {
            sink.Reject();
        }
        return true;
    }

private:
    template <class Sink> static void WalkCommand(const ZAMPrepressPathCommands::Command& command, Sink& sink) {
        if (!command.written.empty()) {
            sink.Word(command.written);
        }
        for (const std::string_view argument : command.GetArguments()) {
            sink.Number(argument);
        }
    }
};

// Up to the first error.
struct Points {
    static constexpr ZAMPrepressListSyntax kSyntax{" ,", false};

    template <class Sink> static bool Walk(std::string_view text, bool /*filled*/, Sink& sink) {
        ZAMPrepressScanner scanner(text);
        scanner.SkipSpace();
        for (bool comma = false; comma || !scanner.AtEnd(); comma = scanner.SkipSeparator()) {
            const std::string_view number = scanner.TakeNumber();
            if (number.empty()) {
                sink.Reject();
                break;
            }
            sink.Number(number);
        }
        return true;
    }
};

struct Transform {
    static constexpr ZAMPrepressListSyntax kSyntax{" ,", false};

    template <class Sink> static bool Walk(std::string_view text, bool /*filled*/, Sink& sink) {
        ZAMPrepressTransformFunctions functions(text);
        for (ZAMPrepressTransformFunctions::Function function; functions.Next(function);) {
            sink.Space();
            WalkFunction(function, sink);
        }
        if (functions.HasFailed()) {
            sink.Reject();
        }
        return !functions.HasFailed();
    }

private:
    // A name with a blank behind it is unknown to the interpreter.
    template <class Sink>
    static void WalkFunction(const ZAMPrepressTransformFunctions::Function& function, Sink& sink) {
        sink.Word(function.name);
        if (function.name.data() + function.name.size() != function.open.data()) {
            sink.Reject();
        }
        sink.Word(function.open);
        for (const std::string_view argument : function.GetArguments()) {
            sink.Number(argument);
        }
        sink.Word(function.close);
    }
};

struct ViewBox {
    static constexpr ZAMPrepressListSyntax kSyntax{" ", false};

    template <class Sink> static bool Walk(std::string_view text, bool filled, Sink& sink) {
        if (!ZAMPrepressReadViewBox(text)) {
            sink.Reject();
            return false;
        }
        return Points::Walk(text, filled, sink);
    }
};

template <class Syntax> bool IsPlain(std::string_view text, bool filled) {
    ZAMPrepressPlainnessSink sink(text, Syntax::kSyntax);
    Syntax::Walk(text, filled, sink);
    return sink.IsPlain();
}

template <class Syntax> std::string Plain(std::string_view text, bool filled) {
    ZAMPrepressPlainTextSink sink(text.size() + text.size() / 4);
    return Syntax::Walk(text, filled, sink) ? sink.TakeText() : std::string();
}

struct Row {
    ZAMLightXmlName attribute;
    bool (*isPlain)(std::string_view text, bool filled);
    std::string (*plain)(std::string_view text, bool filled);
};

constexpr Row kRows[] = {
    {"d", IsPlain<PathData>, Plain<PathData>},
    {"points", IsPlain<Points>, Plain<Points>},
    {"transform", IsPlain<Transform>, Plain<Transform>},
    {"viewBox", IsPlain<ViewBox>, Plain<ViewBox>},
};

constexpr ZAMLightXmlName kFill("fill");

bool MayBeFilled(std::string_view fill) {
    return fill != "none";
}

void RewriteElement(ZAMPrepressTree& tree, ZAMPrepressElement& element) {
    const bool filled = MayBeFilled(element.Get(kFill.GetText()));
    for (const Row& row : kRows) {
        const std::string_view name = row.attribute.GetText();
        const std::string_view text = element.Get(name);
        if (text.empty() || row.isPlain(text, filled)) {
            continue;
        }
        std::string plain = row.plain(text, filled);
        if (plain.empty()) {
            element.Remove(name);
        } else {
            element.Set(name, tree.Keep(std::move(plain)));
        }
    }
    for (ZAMPrepressElement* child : element.children) {
        RewriteElement(tree, *child);
    }
}

} // namespace

bool ZAMPrepressNumbers::Concerns(const ZAMLightXmlElementItf& element) {
    const bool filled = MayBeFilled(element.GetAttribute(kFill));
    return std::ranges::any_of(kRows, [&](const Row& row) {
        const std::string_view text = element.GetAttribute(row.attribute);
        return !text.empty() && !row.isPlain(text, filled);
    });
}

void ZAMPrepressNumbers::Rewrite(ZAMPrepressTree& tree) {
    RewriteElement(tree, tree.GetRoot());
}
