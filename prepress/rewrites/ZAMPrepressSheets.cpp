// SPDX-License-Identifier: MIT
#include "prepress/rewrites/ZAMPrepressSheets.h"

#include "framework/base/ZAMTextCompare.h"
#include "prepress/style/ZAMPrepressCascade.h"
#include "prepress/style/ZAMPrepressCssEscapes.h"
#include "prepress/style/ZAMPrepressMedia.h"
#include "prepress/style/ZAMPrepressRuleMatcher.h"

#include <algorithm>
#include <unordered_map>

namespace {

using Element = ZAMPrepressElement;
using Property = ZAMPrepressProperty;

constexpr std::string_view kSheet = "style";
constexpr std::string_view kStyle = "style";
constexpr std::string_view kClass = "class";
constexpr std::size_t kMostStyles = 1'000;

bool IsCss(const Element& sheet) {
    std::string_view type = sheet.Get("type");
    type = ZAMPrepressCss::Trim(type.substr(0, type.find(';')));
    return (type.empty() || ZAMTextMatches(type, "text/css")) && ZAMPrepressMediaHolds(sheet.Get("media"));
}

std::string GetText(const Element& element) {
    std::string text;
    for (const Element* child : element.children) {
        text.append(child->text);
    }
    return text;
}

// Reads all sheets below the element, in document order.
void ReadSheets(const Element& element, ZAMPrepressTree& tree, ZAMPrepressRules& rules) {
    for (const Element* child : element.children) {
        if (!child->Is(kSheet)) {
            ReadSheets(*child, tree, rules);
        } else if (IsCss(*child)) {
            rules.AddSheet(tree.Keep(GetText(*child)));
        }
    }
}

struct Geometry {
    Property property;
    std::string_view elements; ///< whose attribute it is, in blanks
};

// The size of a drawing is its own matter: sheets give it for the room on a screen.
constexpr Geometry kGeometry[] = {
    {Property::X, " rect image "},      {Property::Y, " rect image "},      {Property::Width, " rect image "},
    {Property::Height, " rect image "}, {Property::Cx, " circle ellipse "}, {Property::Cy, " circle ellipse "},
    {Property::R, " circle "},          {Property::Rx, " rect ellipse "},   {Property::Ry, " rect ellipse "},
};

// Whether an attribute can say what the property is on elements of that name.
bool Takes(const ZAMPrepressPropertyRow& row, std::string_view name) {
    if (row.use != ZAMPrepressUse::Sheet) {
        return true;
    }
    const auto* const geometry = std::ranges::find(kGeometry, row.property, &Geometry::property);
    std::string padded = " ";
    padded.append(name).append(" ");
    return geometry->elements.find(padded) != std::string_view::npos;
}

class Styler {
public:
    Styler(ZAMPrepressTree& tree, const ZAMPrepressRules& rules) : _Tree(tree), _Rules(rules), _Matcher(rules) {}

    // The subject is without its classes yet.
    void Visit(Element& element, ZAMPrepressSubject subject) {
        subject.element = &element;
        subject.classes = ReadClasses(element);
        subject.language = GetLanguage(element).value_or(subject.language);
        const ZAMPrepressVariables::Definitions variables = Decide(element, subject);
        _Variables.Push(variables);
        ResolveVariables(element);
        VisitChildren(element, subject.language);
        _Matcher.Leave();
        _Variables.Pop(variables);
    }

private:
    using TypePlaces = std::unordered_map<std::string_view, ZAMPrepressPlace>;

    // Lets the strongest declarations be the element's attributes, but for those of variables, which it returns.
    ZAMPrepressVariables::Definitions Decide(Element& element, const ZAMPrepressSubject& subject) {
        ZAMPrepressCascade cascade;
        OfferRules(subject, cascade);
        for (const ZAMPrepressDeclaration& declaration : ReadStyle(element.Get(kStyle))) {
            cascade.OfferInline(declaration);
        }
        element.Remove(kStyle);
        element.Remove(kClass);
        SetProperties(element, cascade);
        return cascade.GetVariables();
    }

    void OfferRules(const ZAMPrepressSubject& subject, ZAMPrepressCascade& cascade) {
        for (const std::uint32_t number : _Matcher.Enter(subject)) {
            const ZAMPrepressRules::State& state = _Rules.GetState(number);
            for (const auto* declarations : {&state.declared, &state.variables}) {
                for (const ZAMPrepressRules::Declared& declared : *declarations) {
                    cascade.Offer(declared, state.specificity);
                }
            }
        }
    }

    // Many elements of a drawing have the same style.
    const std::vector<ZAMPrepressDeclaration>& ReadStyle(std::string_view text) {
        if (_Styles.size() > kMostStyles) {
            _Styles.clear();
        }
        const auto [style, isNew] = _Styles.try_emplace(text);
        if (isNew) {
            ZAMPrepressReadDeclarations(text, _Tree.GetTexts(), style->second);
        }
        return style->second;
    }

    static std::optional<std::string_view> GetLanguage(const Element& element) {
        const auto language = element.Find("xml:lang");
        return language ? language : element.Find("lang");
    }

    static std::vector<std::string_view> ReadClasses(const Element& element) {
        std::vector<std::string_view> classes;
        std::string_view rest = ZAMPrepressCss::Trim(element.Get(kClass));
        while (!rest.empty()) {
            const std::size_t end = std::min(rest.find_first_of(ZAMPrepressCss::kBlanks), rest.size());
            classes.push_back(rest.substr(0, end));
            rest = ZAMPrepressCss::Trim(rest.substr(end));
        }
        std::ranges::sort(classes);
        classes.erase(std::unique(classes.begin(), classes.end()), classes.end());
        return classes;
    }

    void SetProperties(Element& element, const ZAMPrepressCascade& cascade) {
        for (const ZAMPrepressPropertyRow& row : ZAMPrepressGetProperties()) {
            const auto value = cascade.Get(row.property);
            if (value && Takes(row, element.name)) {
                element.Set(row.name, *value);
            }
        }
    }

    // Also in attributes that no sheet has a say in.
    void ResolveVariables(Element& element) {
        std::erase_if(element.attributes, [&](Element::Attribute& attribute) {
            const auto* const row =
                ZAMPrepressHasVariables(attribute.value) ? ZAMPrepressFindProperty(attribute.name) : nullptr;
            if (row == nullptr) {
                return false;
            }
            auto value = _Variables.Substitute(attribute.value);
            const bool isGood = value && ZAMPrepressIsValue(row->property, *value);
            attribute.value = isGood ? _Tree.Keep(*std::move(value)) : attribute.value;
            return !isGood;
        });
    }

    void VisitChildren(Element& element, std::string_view language) {
        const auto isElement = [](const Element* child) { return !child->IsText(); };
        ZAMPrepressPlace place{0, static_cast<std::size_t>(std::ranges::count_if(element.children, isElement))};
        TypePlaces typePlaces = CountTypes(element);
        for (Element* child : element.children) {
            if (isElement(child)) {
                ++place.index;
                const auto ofType = typePlaces.find(child->name);
                const bool isCounted = ofType != typePlaces.end() && ++ofType->second.index != 0;
                Visit(*child, {nullptr, {}, place, isCounted ? ofType->second : ZAMPrepressPlace(), language});
            }
        }
        // Not before: selectors count them as siblings.
        std::erase_if(element.children, [](const Element* child) { return child->Is(kSheet); });
    }

    // With the index before the first of each name.
    [[nodiscard]] TypePlaces CountTypes(const Element& parent) const {
        TypePlaces places;
        for (const Element* child : parent.children) {
            if (_Rules.AskForTypes() && !child->IsText()) {
                ++places.try_emplace(child->name, ZAMPrepressPlace{0, 0}).first->second.count;
            }
        }
        return places;
    }

    ZAMPrepressTree& _Tree;
    const ZAMPrepressRules& _Rules;
    ZAMPrepressRuleMatcher _Matcher;
    ZAMPrepressVariables _Variables;
    std::unordered_map<std::string_view, std::vector<ZAMPrepressDeclaration>> _Styles; // read last, by their texts
};

} // namespace

bool ZAMPrepressSheets::Concerns(const ZAMLightXmlElementItf& element) {
    static constexpr ZAMLightXmlName kName(kStyle);
    return element.GetName() == kSheet || !element.GetAttribute(kName).empty();
}

void ZAMPrepressSheets::Rewrite(ZAMPrepressTree& tree) {
    ZAMPrepressRules rules(tree.GetTexts());
    ReadSheets(tree.GetRoot(), tree, rules);
    Styler(tree, rules).Visit(tree.GetRoot(), {});
}
