// SPDX-License-Identifier: MIT
#include "prepress/text/ZAMPrepressFamilies.h"

#include "framework/base/ZAMTextCompare.h"

#include <algorithm>
#include <iterator>

namespace {

struct GenericFamily {
    std::string_view name;
    const char* file;
};
constexpr GenericFamily kGenericFamilies[] = {{"serif", "times.ttf"},
                                              {"sans-serif", "arial.ttf"},
                                              {"cursive", "MTCORSVA.TTF"},
                                              {"fantasy", "Alpha Geometrique"},
                                              {"monospace", "cour.ttf"}};
constexpr std::string_view kLastResort = "serif";

struct OtherName {
    std::string_view name;
    std::string_view meaning;
};
// Other words for generic families: those of CSS Fonts 4, and what drawing programs on Linux write.
constexpr OtherName kOtherNames[] = {{"sans", "sans-serif"},          {"system-ui", "sans-serif"},
                                     {"ui-sans-serif", "sans-serif"}, {"ui-rounded", "sans-serif"},
                                     {"ui-serif", "serif"},           {"ui-monospace", "monospace"}};

// Families that go on under another name, with the same shapes.
constexpr OtherName kSuccessors[] = {{"bitstream vera sans", "DejaVu Sans"},
                                     {"bitstream vera sans mono", "DejaVu Sans Mono"},
                                     {"bitstream vera serif", "DejaVu Serif"}};

// What families that are not installed look like, by parts of their names.
constexpr OtherName kLooks[] = {
    {" mono", "monospace"},      {"monaco", "monospace"},  {"courier", "monospace"}, {"consolas", "monospace"},
    {"lucida con", "monospace"}, {"sans", "sans-serif"},   {"arial", "sans-serif"},  {"helvetica", "sans-serif"},
    {"verdana", "sans-serif"},   {"tahoma", "sans-serif"}, {"segoe", "sans-serif"},  {"trebuchet", "sans-serif"},
    {"calibri", "sans-serif"},   {"lucida", "sans-serif"}, {"roboto", "sans-serif"}, {"ubuntu", "sans-serif"},
};

// The row of that name, or null.
template <class Row, std::size_t size> const Row* Find(const Row (&rows)[size], std::string_view name) {
    const auto* const found =
        std::ranges::find_if(rows, [name](const Row& row) { return ZAMTextMatches(row.name, name); });
    return found == std::end(rows) ? nullptr : found;
}

// The generic family that is likest to the first of the list that is like one.
std::string_view GuessGeneric(std::string_view families) {
    while (!families.empty()) {
        const std::string name = ZAMFoldText(ZAMPrepressFamilies::TakeName(families));
        const auto* const like = std::ranges::find_if(
            kLooks, [&](const OtherName& part) { return name.find(part.name) != std::string::npos; });
        if (like != std::end(kLooks)) {
            return like->meaning;
        }
    }
    return kLastResort;
}

} // namespace

std::string ZAMPrepressFamilies::TakeName(std::string_view& families) {
    const std::size_t length = std::min(families.find(','), families.size());
    std::string name(families.substr(0, length));
    families.remove_prefix(std::min(length + 1, families.size()));
    std::erase_if(name, [](char c) { return c == '"' || c == '\''; });
    name.erase(0, std::min(name.find_first_not_of(' '), name.size()));
    name.erase(name.find_last_not_of(' ') + 1);
    return name;
}

std::string ZAMPrepressFamilies::Complete(std::string_view families) {
    const std::string_view whole = families;
    std::string list;
    const auto add = [&list](std::string_view name) { list.append(list.empty() ? "" : ", ").append(name); };
    while (!families.empty()) {
        const std::string name = TakeName(families);
        if (const OtherName* const other = Find(kOtherNames, name)) {
            add(other->meaning);
            return list;
        }
        if (!name.empty()) {
            add(name);
        }
        if (const OtherName* const successor = Find(kSuccessors, name)) {
            add(successor->meaning);
        }
        if (Find(kGenericFamilies, name) != nullptr) {
            return list;
        }
    }
    add(GuessGeneric(whole));
    return list;
}

const char* ZAMPrepressFamilies::FindGeneric(std::string_view name) {
    const GenericFamily* const family = Find(kGenericFamilies, name);
    return family == nullptr ? nullptr : family->file;
}
