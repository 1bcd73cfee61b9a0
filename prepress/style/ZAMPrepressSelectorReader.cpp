// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressCssTokenizer.h"
#include "prepress/style/ZAMPrepressPseudoClasses.h"
#include "prepress/style/ZAMPrepressSelector.h"

#include <algorithm>

namespace {

using Compound = ZAMPrepressCompound;
using Selector = ZAMPrepressSelector;
using Token = ZAMPrepressCssToken;
using Type = ZAMPrepressCssTokenType;

constexpr std::uint32_t kIdWeight = 1U << 20U;
constexpr std::uint32_t kClassWeight = 1U << 10U;
constexpr std::uint32_t kNameWeight = 1U;

// Counts that would run over into the next one stay at their largest.
void AddWeight(std::uint32_t& specificity, std::uint32_t weight) {
    constexpr std::uint32_t kLargest = 1023;
    if ((specificity / weight & kLargest) != kLargest) {
        specificity += weight;
    }
}

// Parts of elements that only other kinds of text have, in the spelling of old, which is that of a pseudo-class.
constexpr std::string_view kParts[] = {"before", "after", "first-line", "first-letter"};

class SelectorReader {
public:
    SelectorReader(std::string_view text, std::list<std::string>& texts) : _Tokens(text, texts), _Texts(texts) {}

    // False when there is an error.
    bool Read(std::vector<Selector>& selectors) {
        do {
            Selector selector;
            if (!ReadSteps(selector)) {
                return false;
            }
            selectors.push_back(std::move(selector));
        } while (_Tokens.Eat(','));
        return _Tokens.Peek().type == Type::End;
    }

private:
    bool ReadSteps(Selector& selector) {
        _Tokens.SkipBlanks();
        for (char combinator = '\0';;) {
            Selector::Step& step = selector.steps.emplace_back();
            step.combinator = combinator;
            if (!ReadCompound(step.compound, selector.specificity, true)) {
                return false;
            }
            combinator = ReadCombinator();
            if (combinator == '\0') {
                return true;
            }
        }
    }

    // None at the end of a selector.
    char ReadCombinator() {
        const bool isBlank = _Tokens.Peek().type == Type::Blank;
        _Tokens.SkipBlanks();
        for (const char combinator : {'>', '+', '~'}) {
            if (_Tokens.Eat(combinator)) {
                _Tokens.SkipBlanks();
                return combinator;
            }
        }
        return !isBlank || _Tokens.Peek().type == Type::End || _Tokens.Peek().Is(',') ? '\0' : ' ';
    }

    bool ReadCompound(Compound& compound, std::uint32_t& specificity, bool mayExclude) {
        const char* const begin = _Tokens.Peek().source.data();
        bool isAny = ReadName(compound, specificity);
        while (IsSimple(_Tokens.Peek())) {
            isAny = true;
            if (!ReadSimple(compound, specificity, mayExclude)) {
                return false;
            }
        }
        compound.source = {begin, static_cast<std::size_t>(_Tokens.Peek().source.data() - begin)};
        return isAny;
    }

    // A name or "*", with the prefix of a namespace or without; all elements here are of one namespace.
    bool ReadName(Compound& compound, std::uint32_t& specificity) {
        bool isAny = false;
        do {
            if (_Tokens.Peek().type == Type::Ident) {
                compound.tag = _Tokens.Next().text;
            } else if (_Tokens.Eat('*')) {
                compound.tag = {};
            } else {
                return isAny;
            }
            isAny = true;
        } while (_Tokens.Eat('|'));
        if (!compound.tag.empty()) {
            AddWeight(specificity, kNameWeight);
        }
        return true;
    }

    static bool IsSimple(const Token& token) {
        return token.type == Type::Hash || token.Is('.') || token.Is('[') || token.Is(':');
    }

    bool ReadSimple(Compound& compound, std::uint32_t& specificity, bool mayExclude) {
        const Token token = _Tokens.Next();
        if (token.type == Type::Hash) {
            AddWeight(specificity, kIdWeight);
            compound.isNever = compound.isNever || (!compound.id.empty() && compound.id != token.text);
            compound.id = token.text;
            return token.isIdentifier;
        }
        if (token.Is(':')) {
            return ReadPseudo(compound, specificity, mayExclude);
        }
        AddWeight(specificity, kClassWeight);
        if (token.Is('[')) {
            return ReadAttribute(compound);
        }
        compound.classes.push_back(_Tokens.Peek().text);
        return _Tokens.Next().type == Type::Ident;
    }

    bool ReadAttribute(Compound& compound) {
        Compound::AttributeTest test;
        _Tokens.SkipBlanks();
        const Token name = _Tokens.Next();
        test.name = name.text;
        _Tokens.SkipBlanks();
        if (name.type == Type::Ident && !_Tokens.Eat(']')) {
            return ReadOperation(test) && ReadValue(test) && (compound.attributes.push_back(test), true);
        }
        compound.attributes.push_back(test);
        return name.type == Type::Ident;
    }

    bool ReadOperation(Compound::AttributeTest& test) {
        test.operation = '=';
        for (const char operation : {'~', '|', '^', '$', '*'}) {
            if (_Tokens.Eat(operation)) {
                test.operation = operation;
                break;
            }
        }
        return _Tokens.Eat('=');
    }

    bool ReadValue(Compound::AttributeTest& test) {
        _Tokens.SkipBlanks();
        const Token value = _Tokens.Next();
        test.value = value.text;
        _Tokens.SkipBlanks();
        if (_Tokens.Peek().IsIdent("i")) {
            test.ignoresCase = true;
            _Tokens.Next();
            _Tokens.SkipBlanks();
        }
        return (value.type == Type::Ident || value.type == Type::String) && _Tokens.Eat(']');
    }

    bool ReadPseudo(Compound& compound, std::uint32_t& specificity, bool mayExclude) {
        const bool isElement = _Tokens.Eat(':');
        const Token name = _Tokens.Next();
        if (name.type == Type::Function && !isElement) {
            return ReadFunction(name, compound, specificity, mayExclude);
        }
        if (isElement || std::ranges::any_of(kParts, [&](std::string_view part) { return name.IsIdent(part); })) {
            AddWeight(specificity, kNameWeight);
            compound.isNever = true;
            return name.type == Type::Ident;
        }
        AddWeight(specificity, kClassWeight);
        return name.type == Type::Ident && ZAMPrepressApplyPseudoClass(name.text, compound);
    }

    bool ReadFunction(const Token& name, Compound& compound, std::uint32_t& specificity, bool mayExclude) {
        const std::string_view arguments = _Tokens.TakeBlock(')');
        if (name.IsFunction("not")) {
            return mayExclude && SelectorReader(arguments, _Texts).ReadExclusions(compound, specificity);
        }
        AddWeight(specificity, kClassWeight);
        return ZAMPrepressApplyPseudoClass(name.text, arguments, _Texts, compound);
    }

    // Compounds with commas between them, of which the most specific one counts (Selectors 4, 17).
    bool ReadExclusions(Compound& compound, std::uint32_t& specificity) {
        const std::uint32_t before = specificity;
        do {
            std::uint32_t own = before;
            _Tokens.SkipBlanks();
            if (!ReadCompound(compound.exclusions.emplace_back(), own, false)) {
                return false;
            }
            specificity = std::max(specificity, own);
            _Tokens.SkipBlanks();
        } while (_Tokens.Eat(','));
        return _Tokens.Peek().type == Type::End;
    }

    ZAMPrepressCssTokenizer _Tokens;
    std::list<std::string>& _Texts;
};

} // namespace

std::optional<std::vector<Selector>> ZAMPrepressReadSelectors(std::string_view text, std::list<std::string>& texts) {
    std::vector<Selector> selectors;
    return SelectorReader(text, texts).Read(selectors) ? std::optional(std::move(selectors)) : std::nullopt;
}
