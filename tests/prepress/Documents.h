// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMAllocationBudget.h"
#include "framework/lightxml/ZAMLightXmlElement.h"
#include "framework/lightxml/ZAMLightXmlInputStreamBuffer.h"
#include "framework/lightxml/ZAMLightXmlParser.h"
#include "prepress/ZAMPrepressRewrite.h"

#include <string>
#include <string_view>

/// The root element of a document; errors are ignored.
inline ZAMLightXmlElement ParseDocument(std::string_view document) {
    ZAMLightXmlElement root;
    const auto* const bytes = reinterpret_cast<const unsigned char*>(document.data());
    ZAMLightXmlParser().Parse(ZAMLightXmlInputStreamBuffer(bytes, static_cast<int>(document.size())), root);
    return root;
}

inline void AppendXmlText(std::string& xml, std::string_view text) {
    for (const char c : text) {
        switch (c) {
        case '&':
            xml += "&amp;";
            break;
        case '<':
            xml += "&lt;";
            break;
        case '"':
            xml += "&quot;";
            break;
        default:
            xml += c;
        }
    }
}

inline bool HasCharacterData(const ZAMLightXmlElement& element) {
    for (ZAMLightXmlPosition position = element.GetFirstTextPosition(); position != 0;) {
        if (element.GetNextText(position).text.find_first_not_of(" \t\r\n") != std::string_view::npos) {
            return true;
        }
    }
    return false;
}

/// The element as XML: one element a line, indented, but for those in character data, where blanks count.
inline void AppendXml(std::string& xml, const ZAMLightXmlElement& element, const std::string& lineBreak) {
    xml.append("<").append(element.GetName());
    for (std::size_t i = 0; i < element.GetAttributeCount(); ++i) {
        const auto [name, value] = element.GetAttributeAt(i);
        xml.append(" ").append(name).append("=\"");
        AppendXmlText(xml, value);
        xml += '"';
    }
    ZAMLightXmlPosition text = element.GetFirstTextPosition();
    auto run = element.GetNextText(text);
    const bool isMixed = HasCharacterData(element);
    if (element.GetFirstChildPosition() == 0 && !isMixed) {
        xml += "/>";
        return;
    }
    xml += '>';
    const bool isInline = isMixed || lineBreak.empty();
    const std::string inner = isInline ? std::string() : lineBreak + "  ";
    std::size_t children = 0;
    const auto addRuns = [&] {
        while (!run.text.empty() && run.childrenBefore <= children) {
            if (isInline) {
                AppendXmlText(xml, run.text);
            }
            run = element.GetNextText(text);
        }
    };
    for (ZAMLightXmlPosition position = element.GetFirstChildPosition(); position != 0; ++children) {
        addRuns();
        xml += inner;
        AppendXml(xml, element.GetNextChild(position), inner);
    }
    addRuns();
    xml.append(isInline ? std::string() : lineBreak).append("</").append(element.GetName()).append(">");
}

inline std::string ToXml(const ZAMLightXmlElement& root) {
    std::string xml;
    AppendXml(xml, root, "\n");
    return xml + "\n";
}

/// The document after the rewrites up to and including the one of that name; after all of them where none has it. It
/// has a budget of its own.
inline ZAMLightXmlElement RewriteUpTo(std::string_view rewriteName, const ZAMLightXmlElement& root) {
    const ZAMAllocationBudget budget;
    ZAMPrepressTree tree(root);
    for (const ZAMPrepressRewrite& rewrite : ZAMPrepressGetRewrites()) {
        rewrite.rewrite(tree);
        if (rewrite.name == rewriteName) {
            break;
        }
    }
    return tree.ToDocument();
}
inline std::string RewriteUpTo(std::string_view rewriteName, std::string_view document) {
    return ToXml(RewriteUpTo(rewriteName, ParseDocument(document)));
}
