// SPDX-License-Identifier: MIT
#pragma once

#include "framework/lightxml/ZAMLightXmlElement.h"
#include "prepress/document/ZAMPrepressElement.h"
#include "prepress/document/ZAMPrepressTextStore.h"

#include <deque>
#include <list>
#include <memory>
#include <memory_resource>
#include <string>
#include <string_view>

class ZAMPrepressTileRenderer;

/// A document that can be changed. It owns its elements; its texts it shares with its source and with the documents
/// that are made of it. Copies are charged to the thread's ZAMAllocationBudget.
class ZAMPrepressTree {
public:
    explicit ZAMPrepressTree(const ZAMLightXmlElementItf& root);
    ZAMPrepressTree(const ZAMPrepressTree&) = delete;
    ZAMPrepressTree& operator=(const ZAMPrepressTree&) = delete;

    [[nodiscard]] ZAMPrepressElement& GetRoot() { return *_Root; }
    /// The root when it is an svg element, else those of its children that are one: each is a page.
    [[nodiscard]] std::vector<ZAMPrepressElement*> GetDrawings();
    /// How many elements and runs of character data were made, those that were dropped since included.
    [[nodiscard]] std::size_t GetSize() const { return _Elements.size(); }

    /// The text, held as long as the tree.
    std::string_view Keep(std::string_view text) { return _Texts->Keep(text); }
    std::string_view Keep(std::string&& text) { return _Texts->Keep(std::move(text)); }
    std::string_view Keep(const char* text) { return Keep(std::string_view(text)); }
    /// Where texts are kept, for readers that keep many.
    [[nodiscard]] std::list<std::string>& GetTexts() { return _Texts->GetLong(); }

    /// A new element without a parent.
    ZAMPrepressElement& NewElement(std::string_view name);
    /// A deep copy without a parent. Null, or without some of its parts, when the thread's budget is spent.
    ZAMPrepressElement* Copy(const ZAMPrepressElement& element);
    /// A deep copy, without a parent, of an element of another document, which is kept alive as well.
    ZAMPrepressElement& Adopt(const ZAMLightXmlElementItf& element);
    static void Append(ZAMPrepressElement& parent, ZAMPrepressElement& child);

    /// The document as it stands.
    [[nodiscard]] ZAMLightXmlElement ToDocument() const { return ToDocument(*_Root); }
    /// An element as a document of its own.
    [[nodiscard]] ZAMLightXmlElement ToDocument(const ZAMPrepressElement& root) const;

    /// What draws tiles; null when nothing does. It is borrowed.
    [[nodiscard]] ZAMPrepressTileRenderer* GetTileRenderer() const { return _TileRenderer; }
    void SetTileRenderer(ZAMPrepressTileRenderer* renderer) { _TileRenderer = renderer; }

    /// The file of the document, which files that it names are looked for beside; empty when there is none.
    [[nodiscard]] const std::string& GetPath() const { return _Path; }
    void SetPath(std::string_view path) { _Path = path; }

private:
    ZAMPrepressElement& Read(const ZAMLightXmlElementItf& element);

    std::shared_ptr<ZAMPrepressTextStore> _Texts = std::make_shared<ZAMPrepressTextStore>();
    std::pmr::monotonic_buffer_resource _Memory; // of the elements and their lists: given back as a whole
    std::pmr::deque<ZAMPrepressElement> _Elements{&_Memory};
    ZAMPrepressElement* _Root;
    ZAMPrepressTileRenderer* _TileRenderer = nullptr;
    std::string _Path;
};
