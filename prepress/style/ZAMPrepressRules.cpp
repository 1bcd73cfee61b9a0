// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressRules.h"

#include "prepress/style/ZAMPrepressSheet.h"

#include <algorithm>

void ZAMPrepressRules::AddSheet(std::string_view sheet) {
    ZAMPrepressReadSheet(sheet, _Texts,
                         [this](std::string_view selectors, std::string_view block) { AddRule(selectors, block); });
}

void ZAMPrepressRules::AddRule(std::string_view selectors, std::string_view block) {
    const auto read = ZAMPrepressReadSelectors(selectors, _Texts);
    if (!read) {
        return;
    }
    std::vector<ZAMPrepressDeclaration> declarations;
    ZAMPrepressReadDeclarations(block, _Texts, declarations);
    ++_LastOrder;
    if (declarations.empty()) {
        return;
    }
    for (const ZAMPrepressSelector& selector : *read) {
        State& state = _States[AddSelector(selector)];
        for (const ZAMPrepressDeclaration& declaration : declarations) {
            Declare(state, declaration, _LastOrder);
        }
    }
}

std::uint32_t ZAMPrepressRules::AddSelector(const ZAMPrepressSelector& selector) {
    std::uint32_t state = 0;
    for (const ZAMPrepressSelector::Step& step : selector.steps) {
        state = AddState(step, state);
    }
    _States[state].specificity = selector.specificity;
    return state;
}

std::uint32_t ZAMPrepressRules::AddState(const ZAMPrepressSelector::Step& step, std::uint32_t before) {
    std::string key = std::to_string(before);
    key.append(1, step.combinator).append(step.compound.source);
    const auto [found, isNew] = _StatesByText.try_emplace(std::move(key), static_cast<std::uint32_t>(_States.size()));
    if (!isNew) {
        return found->second;
    }
    State& state = _States.emplace_back();
    state.compound = step.compound;
    state.before = before;
    state.combinator = step.combinator;
    state.tests = state.compound.CountTests();
    _AskForTypes = _AskForTypes || state.compound.AsksForType();
    File& file = GetFile(state.compound);
    if (step.combinator == '\0') {
        file.first.push_back(found->second);
        return found->second;
    }
    file.later.push_back(found->second);
    file.laterByBefore[before].push_back(found->second);
    _States[before].leadsOn = true;
    _States[before].leadsToSiblings = _States[before].leadsToSiblings || step.combinator == '~';
    return found->second;
}

ZAMPrepressRules::File& ZAMPrepressRules::GetFile(const ZAMPrepressCompound& compound) {
    if (!compound.id.empty()) {
        return _ById[compound.id];
    }
    if (!compound.classes.empty()) {
        return _ByClass[compound.classes.back()];
    }
    if (!compound.attributes.empty()) {
        const ZAMPrepressCompound::AttributeTest& test = compound.attributes.front();
        return test.operation == '=' && !test.ignoresCase ? _ByValue[test.value] : _ByAttribute[test.name];
    }
    return compound.tag.empty() ? _General : _ByTag[compound.tag];
}

// Variables, which may be many, are compared when they are asked for.
void ZAMPrepressRules::Declare(State& state, const ZAMPrepressDeclaration& declaration, std::uint32_t order) {
    if (declaration.property == ZAMPrepressProperty::Custom) {
        state.variables.push_back({declaration, order});
        return;
    }
    const auto isSame = [&](const Declared& each) { return each.declaration.property == declaration.property; };
    const auto found = std::ranges::find_if(state.declared, isSame);
    if (found == state.declared.end()) {
        state.declared.push_back({declaration, order});
    } else if (declaration.isImportant || !found->declaration.isImportant) {
        *found = {declaration, order};
    }
}
