// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressRuleMatcher.h"

#include "framework/base/ZAMLimits.h"

#include <algorithm>

namespace {

// A step whose ancestor is not there costs next to nothing, anything else about ten times as much.
constexpr std::size_t kTestWork = 10;

// What tests of attributes may take in all, where these are long.
std::size_t GetLengthWork(const ZAMPrepressRules::State& state, const ZAMPrepressSubject& subject) {
    constexpr std::size_t kBytesForOneWork = 4;
    std::size_t length = 0;
    for (const ZAMPrepressCompound::AttributeTest& test : state.compound.attributes) {
        length += subject.element->Get(test.name).size();
    }
    return length / kBytesForOneWork;
}

void MakeSet(std::vector<std::uint32_t>& states) {
    std::ranges::sort(states);
    states.erase(std::unique(states.begin(), states.end()), states.end());
}

} // namespace

ZAMPrepressRuleMatcher::ZAMPrepressRuleMatcher(const ZAMPrepressRules& rules)
    : _Rules(rules), _Levels(1), _OpenCounts(rules.GetStateCount()), _WorkLeft(ZAMLimits::kSheetWork) {}

bool ZAMPrepressRuleMatcher::Holds(const ZAMPrepressRules::State& state, const ZAMPrepressSubject& subject) const {
    const Level& parent = _Levels.back();
    switch (state.combinator) {
    case ' ':
        return _OpenCounts[state.before] != 0 && state.compound.Matches(subject);
    case '>':
        return std::ranges::binary_search(parent.own, state.before) && state.compound.Matches(subject);
    case '+':
        return std::ranges::binary_search(parent.lastChild, state.before) && state.compound.Matches(subject);
    case '~':
        return parent.children.contains(state.before) && state.compound.Matches(subject);
    default:
        return state.compound.Matches(subject);
    }
}

bool ZAMPrepressRuleMatcher::Spend(std::size_t work) {
    const bool suffices = work <= _WorkLeft;
    _WorkLeft -= suffices ? work : 0;
    return suffices;
}

// Those that steps lead to are found from the steps that hold around the element, or the other way about, whichever are
// fewer.
void ZAMPrepressRuleMatcher::Meet(const ZAMPrepressRules::File& file, const ZAMPrepressSubject& subject,
                                  std::vector<std::uint32_t>& own) {
    Test(file.first, subject, own);
    const Level& parent = _Levels.back();
    if (file.later.size() <= _Open.size() + parent.lastChild.size() + parent.children.size()) {
        Test(file.later, subject, own);
        return;
    }
    const auto testAfter = [&](std::uint32_t before) {
        const auto found = Spend(kTestWork) ? file.laterByBefore.find(before) : file.laterByBefore.end();
        if (found != file.laterByBefore.end()) {
            Test(found->second, subject, own);
        }
    };
    std::ranges::for_each(_Open, testAfter);
    std::ranges::for_each(parent.lastChild, testAfter);
    std::ranges::for_each(parent.children, testAfter);
}

void ZAMPrepressRuleMatcher::Test(std::span<const std::uint32_t> states, const ZAMPrepressSubject& subject,
                                  std::vector<std::uint32_t>& own) {
    for (const std::uint32_t number : states) {
        if (_WorkLeft < kTestWork) {
            return;
        }
        const ZAMPrepressRules::State& state = _Rules.GetState(number);
        const bool isOut = state.combinator == ' ' && _OpenCounts[state.before] == 0;
        if (!Spend(isOut ? 1 : kTestWork + state.tests + GetLengthWork(state, subject)) || isOut ||
            !Holds(state, subject)) {
            continue;
        }
        if (state.leadsOn) {
            own.push_back(number);
        }
        if (state.CountDeclared() != 0 && Spend(state.declared.size() + kTestWork * state.variables.size())) {
            _Matched.push_back(number);
        }
    }
}

std::span<const std::uint32_t> ZAMPrepressRuleMatcher::Enter(const ZAMPrepressSubject& subject) {
    Level level;
    _Matched.clear();
    _WorkLeft += ZAMLimits::kSheetWorkForEachElement;
    _Rules.VisitCandidates(subject, [&](const ZAMPrepressRules::File& file) { Meet(file, subject, level.own); });
    MakeSet(level.own);
    MakeSet(_Matched);
    level.openBefore = _Open.size();
    for (const std::uint32_t state : level.own) {
        if (++_OpenCounts[state] == 1) {
            _Open.push_back(state);
        }
    }
    _Levels.push_back(std::move(level));
    return _Matched;
}

void ZAMPrepressRuleMatcher::Leave() {
    std::vector<std::uint32_t> own = std::move(_Levels.back().own);
    _Open.resize(_Levels.back().openBefore);
    _Levels.pop_back();
    for (const std::uint32_t state : own) {
        --_OpenCounts[state];
        if (_Rules.GetState(state).leadsToSiblings) {
            _Levels.back().children.insert(state);
        }
    }
    _Levels.back().lastChild = std::move(own);
}
