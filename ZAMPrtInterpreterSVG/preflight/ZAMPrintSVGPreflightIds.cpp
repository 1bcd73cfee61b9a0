// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflightIds.h"

#include "framework/base/ZAMTextCompare.h"
#include "ZAMPrtInterpreterSVG/parser/ZAMPrintSVGParser.h"

namespace {

// Symbols, patterns and markers are definitions wherever they stand.
bool IsDefinition(std::string_view name, bool isInDefs) {
    return ZAMTextMatches(name, "symbol") || ZAMTextMatches(name, "pattern") || ZAMTextMatches(name, "marker") ||
           (isInDefs && ZAMPrintSVGParser::IsElement(name));
}

} // namespace

std::string ZAMPrintSVGPreflightIds::KeyOf(std::string_view id) const {
    return _Mode == ZAMPrintSVGPreflight::Mode::AsItStands ? ZAMFoldText(id) : std::string(id);
}

void ZAMPrintSVGPreflightIds::Index(const ZAMLightXmlElementItf& element, bool isInDefs) {
    const std::string_view id = element.GetAttribute("id");
    if (!id.empty()) {
        Target& target = _Targets[KeyOf(id)];
        if (target.element.GetName().empty()) {
            target.element.Assign(element);
        }
        target.isDefinition = target.isDefinition || IsDefinition(element.GetName(), isInDefs);
    }
    const bool isDefs = ZAMTextMatches(element.GetName(), "defs");
    for (ZAMLightXmlPosition position = element.GetFirstChildPosition(); position != 0;) {
        Index(element.GetNextChild(position), isDefs);
    }
}

ZAMPrintSVGPreflightIds::Target* ZAMPrintSVGPreflightIds::Find(std::string_view id) {
    const auto found = _Targets.find(KeyOf(id));
    return found == _Targets.end() ? nullptr : &found->second;
}

void ZAMPrintSVGPreflightIds::Enter(const ZAMLightXmlElementItf& element, bool isInDefs) {
    const std::string_view id = element.GetAttribute("id");
    Target* const target = id.empty() ? nullptr : Find(id);
    if (target == nullptr) {
        return;
    }
    target->wasSeen = true;
    if (IsDefinition(element.GetName(), isInDefs)) {
        ++target->validCount;
        _Valid.push_back(target);
    }
}

void ZAMPrintSVGPreflightIds::Leave(std::size_t count) {
    while (_Valid.size() > count) {
        --_Valid.back()->validCount;
        _Valid.pop_back();
    }
}
