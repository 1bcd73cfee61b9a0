// SPDX-License-Identifier: MIT
#include "prepress/rewrites/ZAMPrepressNames.h"

#include <algorithm>
#include <vector>

namespace {

constexpr std::string_view kDeclaration = "xmlns:";
constexpr std::string_view kSvg = "http://www.w3.org/2000/svg";
constexpr std::string_view kLink = "http://www.w3.org/1999/xlink";
constexpr std::string_view kSvgPrefix = "svg";
constexpr std::string_view kLinkPrefix = "xlink";
constexpr std::string_view kPlainReference = "href";
constexpr std::string_view kReference = "xlink:href";

// All are compared with each name: drawings have one or two.
constexpr std::size_t kMostPrefixes = 16;

struct Name {
    std::string_view prefix; // empty when there is none
    std::string_view local;
};

// A colon at the end separates nothing: no element is without a name.
Name Split(std::string_view name) {
    const std::size_t colon = name.find(':');
    return colon == std::string_view::npos || colon + 1 == name.size()
               ? Name{{}, name}
               : Name{name.substr(0, colon), name.substr(colon + 1)};
}

// The prefixes of the two namespaces. Those that documents use as a rule need no declaration.
class Namespaces {
public:
    void Rewrite(ZAMPrepressElement& element) {
        const std::size_t svgPrefixes = _Svg.size();
        const std::size_t linkPrefixes = _Link.size();
        std::ranges::for_each(element.attributes, [this](const auto& attribute) { Declare(attribute); });
        if (const Name name = Split(element.name); Has(_Svg, name.prefix)) {
            element.name = name.local;
        }
        RewriteReference(element);
        for (ZAMPrepressElement* child : element.children) {
            Rewrite(*child);
        }
        _Svg.resize(svgPrefixes);
        _Link.resize(linkPrefixes);
    }

private:
    using Prefixes = std::vector<std::string_view>;

    static bool Has(const Prefixes& prefixes, std::string_view prefix) {
        return !prefix.empty() && std::ranges::find(prefixes, prefix) != prefixes.end();
    }

    void Declare(const ZAMPrepressElement::Attribute& attribute) {
        if (!attribute.name.starts_with(kDeclaration) || (attribute.value != kSvg && attribute.value != kLink)) {
            return;
        }
        Prefixes& prefixes = attribute.value == kSvg ? _Svg : _Link;
        if (prefixes.size() < kMostPrefixes) {
            prefixes.push_back(attribute.name.substr(kDeclaration.size()));
        }
    }

    // The plain form wins where both are given (SVG 2, 16.1.3).
    void RewriteReference(ZAMPrepressElement& element) const {
        for (ZAMPrepressElement::Attribute& attribute : element.attributes) {
            const Name name = Split(attribute.name);
            if (name.local == kPlainReference && Has(_Link, name.prefix)) {
                attribute.name = kReference;
            }
        }
        if (const auto reference = element.Find(kPlainReference)) {
            element.Remove(kPlainReference);
            element.Set(kReference, *reference);
        }
    }

    Prefixes _Svg{kSvgPrefix};
    Prefixes _Link{kLinkPrefix};
};

// Whether the attribute declares a prefix that is not the usual one.
bool DeclaresPrefix(std::string_view attribute, std::string_view value) {
    const Name name = Split(attribute);
    return attribute.starts_with(kDeclaration) &&
           ((value == kSvg && name.local != kSvgPrefix) || (value == kLink && name.local != kLinkPrefix));
}

} // namespace

bool ZAMPrepressNames::Concerns(const ZAMLightXmlElementItf& element) {
    if (Split(element.GetName()).prefix == kSvgPrefix) {
        return true;
    }
    for (std::size_t i = 0; i < element.GetAttributeCount(); ++i) {
        const auto [name, value] = element.GetAttributeAt(i);
        if (name == kPlainReference || DeclaresPrefix(name, value)) {
            return true;
        }
    }
    return false;
}

void ZAMPrepressNames::Rewrite(ZAMPrepressTree& tree) {
    Namespaces().Rewrite(tree.GetRoot());
}
