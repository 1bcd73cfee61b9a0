// SPDX-License-Identifier: MIT
#pragma once

#include "prepress/style/ZAMPrepressDeclarations.h"
#include "prepress/style/ZAMPrepressSelector.h"

#include <deque>
#include <list>
#include <unordered_map>
#include <vector>

/// The rules of all sheets of a document. Selectors that start alike share their steps, and each step is filed under
/// the rarest thing that it asks for, so that an element meets only those steps that may hold for it.
class ZAMPrepressRules {
public:
    struct Declared {
        ZAMPrepressDeclaration declaration;
        std::uint32_t order = 0; ///< of the rule, from 1
    };
    /// A step of selectors, with all that lead to it.
    struct State {
        ZAMPrepressCompound compound;
        std::uint32_t before = 0;     ///< the state of the step before it
        char combinator = '\0';       ///< to the step before it, none for a first step
        bool leadsOn = false;         ///< steps follow
        bool leadsToSiblings = false; ///< steps follow after "~"
        std::uint32_t specificity = 0;
        std::size_t tests = 0;           ///< of the compound
        std::vector<Declared> declared;  ///< when selectors end here; of two declarations of a property only the winner
        std::vector<Declared> variables; ///< likewise, but all declarations

        [[nodiscard]] std::size_t CountDeclared() const { return declared.size() + variables.size(); }
    };

    /// States that ask for the same thing of the element.
    struct File {
        std::vector<std::uint32_t> first; ///< with no step before them
        std::vector<std::uint32_t> later; ///< the others, and by the states before them:
        std::unordered_map<std::uint32_t, std::vector<std::uint32_t>> laterByBefore;
    };

    /// What must be kept of the sheets is put into `texts`, which must outlive the rules.
    explicit ZAMPrepressRules(std::list<std::string>& texts) : _Texts(texts) {}

    /// The rules that hold for paper. The text must outlive the rules.
    void AddSheet(std::string_view sheet);

    [[nodiscard]] bool IsEmpty() const { return _States.empty(); }
    [[nodiscard]] std::size_t GetStateCount() const { return _States.size(); }
    [[nodiscard]] const State& GetState(std::uint32_t state) const { return _States[state]; }
    /// Whether selectors ask where an element is among those of its name, so that these need to be counted.
    [[nodiscard]] bool AskForTypes() const { return _AskForTypes; }
    /// Calls `visit` with each file of states that may hold for the element: no state that is in none of them does. A
    /// file may come twice.
    template <typename Visit> void VisitCandidates(const ZAMPrepressSubject& subject, const Visit& visit) const {
        const auto look = [&](const Index& index, std::string_view key) {
            if (const auto found = index.find(key); found != index.end()) {
                visit(found->second);
            }
        };
        visit(_General);
        look(_ByTag, subject.element->name);
        for (const std::string_view name : subject.classes) {
            look(_ByClass, name);
        }
        for (const auto& attribute : subject.element->attributes) {
            look(_ByAttribute, attribute.name);
            if (!_ByValue.empty()) {
                look(_ByValue, attribute.value);
            }
            if (attribute.name == "id") {
                look(_ById, attribute.value);
            }
        }
    }

private:
    using Index = std::unordered_map<std::string_view, File>;

    void AddRule(std::string_view selectors, std::string_view block);
    std::uint32_t AddSelector(const ZAMPrepressSelector& selector);
    std::uint32_t AddState(const ZAMPrepressSelector::Step& step, std::uint32_t before);
    File& GetFile(const ZAMPrepressCompound& compound);
    static void Declare(State& state, const ZAMPrepressDeclaration& declaration, std::uint32_t order);

    std::list<std::string>& _Texts;
    std::deque<State> _States;
    std::unordered_map<std::string, std::uint32_t> _StatesByText;
    Index _ById;
    Index _ByClass;
    Index _ByTag;
    Index _ByAttribute;
    Index _ByValue;
    File _General;
    std::uint32_t _LastOrder = 0;
    bool _AskForTypes = false;
};
