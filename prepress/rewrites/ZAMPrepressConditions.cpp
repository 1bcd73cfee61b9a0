// SPDX-License-Identifier: MIT
#include "prepress/rewrites/ZAMPrepressConditions.h"

#include "framework/base/ZAMTextCompare.h"
#include "prepress/document/ZAMPrepressElementNames.h"

#include <algorithm>
#include <string>

namespace {

constexpr std::string_view kSwitch = "switch";
constexpr std::string_view kExtensions = "requiredExtensions";
constexpr std::string_view kFeatures = "requiredFeatures";
constexpr std::string_view kLanguages = "systemLanguage";

// Printing knows one language, whoever prints: a drawing looks the same everywhere.
bool IsOurLanguage(std::string_view language) {
    constexpr std::string_view kLanguage = "en";
    const auto first = std::min(language.find_first_not_of(' '), language.size());
    const std::string_view tag = language.substr(first, kLanguage.size());
    const std::string_view rest = language.substr(std::min(first + kLanguage.size(), language.size()));
    return ZAMTextMatches(tag, kLanguage) && (rest.empty() || rest.front() == '-' || rest.front() == ' ');
}

bool HasOurLanguage(std::string_view languages) {
    for (;;) {
        const auto comma = languages.find(',');
        if (IsOurLanguage(languages.substr(0, comma))) {
            return true;
        }
        if (comma == std::string_view::npos) {
            return false;
        }
        languages.remove_prefix(comma + 1);
    }
}

// Paper has all features but those of documents that move or answer; an empty list does not hold.
bool AreOnPaper(std::string_view features) {
    constexpr std::string_view kElsewhere[] = {"DOM", "Event", "Script", "dynamic", "nimation"};
    return !features.empty() && std::ranges::none_of(kElsewhere, [&](std::string_view part) {
        return features.find(part) != std::string_view::npos;
    });
}

// An extension is never there.
bool Holds(const ZAMPrepressElement& element) {
    const auto languages = element.Find(kLanguages);
    const auto features = element.Find(kFeatures);
    return !element.Has(kExtensions) && (!features || AreOnPaper(*features)) &&
           (!languages || HasOurLanguage(*languages));
}

// In definitions an element is not drawn, but it and what it defines are still found by their ids.
ZAMPrepressElement* Hidden(ZAMPrepressTree& tree, ZAMPrepressElement& element) {
    ZAMPrepressElement& definitions = tree.NewElement("defs");
    definitions.parent = element.parent;
    ZAMPrepressTree::Append(definitions, element);
    return &definitions;
}

void RewriteElement(ZAMPrepressTree& tree, ZAMPrepressElement& element) {
    const bool isSwitch = element.Is(kSwitch);
    bool isChosen = false;
    for (ZAMPrepressElement*& child : element.children) {
        RewriteElement(tree, *child);
        if (!ZAMPrepressIsDrawn(child->name)) {
            continue;
        }
        if (Holds(*child) && !(isSwitch && isChosen)) {
            isChosen = true;
        } else {
            child = Hidden(tree, *child);
        }
    }
    std::erase_if(element.children,
                  [](const auto* child) { return ZAMPrepressIsTextPart(child->name) && !Holds(*child); });
    if (isSwitch) {
        element.name = "g";
    }
}

} // namespace

// Also an empty condition counts.
bool ZAMPrepressConditions::Concerns(const ZAMLightXmlElementItf& element) {
    if (element.GetName() == kSwitch) {
        return true;
    }
    for (std::size_t i = 0; i < element.GetAttributeCount(); ++i) {
        const std::string_view name = element.GetAttributeAt(i).name;
        if (name == kExtensions || name == kFeatures || name == kLanguages) {
            return true;
        }
    }
    return false;
}

void ZAMPrepressConditions::Rewrite(ZAMPrepressTree& tree) {
    RewriteElement(tree, tree.GetRoot());
}
