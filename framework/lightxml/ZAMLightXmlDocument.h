// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/lightxml/ZAMLightXmlName.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

/// The elements of one document in flat arrays, in document order. It is filled from the top to the bottom, then only
/// read: elements hold it by shared pointer, and several threads may read it at once.
class ZAM_EXPORT ZAMLightXmlDocument {
public:
    static constexpr std::uint32_t kNone = 0xFFFFFFFFU;

    struct Attribute {
        std::string_view name;
        std::string_view value;
    };
    /// A run of character data; the runs of an element form a list.
    struct Text {
        std::string_view data;
        std::uint32_t childrenBefore = 0; ///< elements of the same parent that come before it
        std::uint32_t next = kNone;
    };
    struct Node {
        std::string_view name;
        std::uint64_t attributeBits = 0; ///< union of the ZAMLightXmlName bits
        std::uint32_t firstAttribute = 0;
        std::uint32_t attributeCount = 0;
        std::uint32_t firstChild = kNone;
        std::uint32_t nextSibling = kNone;
        std::uint32_t firstText = kNone;
        std::uint32_t line = 0;
        std::uint32_t column = 0;
    };

    /// A document that copies the texts it is given.
    ZAMLightXmlDocument() = default;
    /// A document whose texts are parts of `texts`, which it keeps alive: it does not copy them.
    explicit ZAMLightXmlDocument(std::shared_ptr<const void> texts) : _Shared(std::move(texts)) {}

    /// Makes room, so that filling it moves nothing; a guess will do.
    void Expect(std::size_t elements, std::size_t attributes);

    /// Opens an element inside the one that is open now (the first is the root).
    void OpenElement(std::string_view name, std::uint32_t line, std::uint32_t column);
    /// To the element opened last, before it gets children.
    void AddAttribute(std::string_view name, std::string_view value);
    /// To the element that is open now.
    void AddText(std::string_view data);
    void CloseElement();
    [[nodiscard]] std::size_t GetOpenCount() const { return _Open.size(); }

    /// The bytes of all names, values and texts.
    [[nodiscard]] std::size_t GetSize() const { return _Size; }
    [[nodiscard]] bool IsEmpty() const { return _Nodes.empty(); }
    /// Node 0 is the root.
    [[nodiscard]] const Node& GetNode(std::uint32_t node) const { return _Nodes[node]; }
    [[nodiscard]] std::span<const Attribute> GetAttributes(const Node& node) const {
        return std::span(_Attributes).subspan(node.firstAttribute, node.attributeCount);
    }
    [[nodiscard]] const Text& GetText(std::uint32_t text) const { return _Texts[text]; }

private:
    // An element whose end has not come yet, with the ends of its lists.
    struct OpenNode {
        std::uint32_t node;
        std::uint32_t lastChild = kNone;
        std::uint32_t lastText = kNone;
        std::uint32_t childCount = 0;
    };

    char* Reserve(std::size_t size);
    std::string_view Keep(std::string_view text);
    struct KeptName {
        std::string_view text;
        std::uint64_t bit = 0; ///< of ZAMLightXmlName
    };
    KeptName KeepName(std::string_view name);
    bool ExtendsLastText(const OpenNode& open) const;

    std::vector<Node> _Nodes;
    std::vector<Attribute> _Attributes;
    std::vector<Text> _Texts;
    std::vector<OpenNode> _Open;
    std::vector<std::unique_ptr<char[]>> _Chunks;
    char* _Free = nullptr;
    std::size_t _FreeSize = 0;
    std::size_t _Size = 0;
    std::shared_ptr<const void> _Shared; // what texts are views into; null when they are copied
    std::vector<KeptName> _RecentNames;  // few names make up a document; see KeepName
};
