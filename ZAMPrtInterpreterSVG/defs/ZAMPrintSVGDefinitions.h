// SPDX-License-Identifier: MIT
#pragma once

#include "ZAMPrtInterpreterSVG/defs/ZAMListPtrZAMPrtDefsElt.h"
#include "ZAMPrtInterpreterSVG/defs/ZAMPrintSVGReference.h"

#include <cstddef>
#include <map>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

/// The registry of definitions. What can be found are the direct children of definitions, by id; the first one wins, by
/// definition and then by child. Ids are read from a hash table, so that a look-up costs the same however many there
/// are.
class ZAMPrintSVGDefinitions {
public:
    /// What a look-up finds.
    struct Found {
        const ZAMPrtDefsElt* definition = nullptr;
        ZAMPrtGraphicPrimitiveElt* element = nullptr;
        /// Nothing that the element leaves open is left: its definition was shared once, and each time it is shared the
        /// state is the same. Null while the element is still being read.
        bool* isCompleted = nullptr;
    };

    /// Keeps a definition at the end of the registry open while its content is read: its last child may still change.
    class OpenScope {
    public:
        OpenScope(ZAMPrintSVGDefinitions& registry, ZAMRef<ZAMPrtDefsElt> definition)
            : _Registry(registry), _Position(registry.Append(std::move(definition))) {}
        OpenScope(const OpenScope&) = delete;
        OpenScope& operator=(const OpenScope&) = delete;
        ~OpenScope() { _Registry._Frames[_Position - 1].isOpen = false; }

    private:
        ZAMPrintSVGDefinitions& _Registry;
        std::size_t _Position;
    };

    /// The first match, or an empty result.
    [[nodiscard]] Found Find(const ZAMPrintSVGReference& id);

    /// Removes so many definitions from the end; none of them is open.
    void RemoveLast(int count);

private:
    using Position = std::pair<std::size_t, std::size_t>; // of the definition from 1, of the child from 0
    using Matches = std::map<Position, bool>;             // and whether the child is completed

    struct Frame {
        std::size_t indexed = 0; // so many children are in the index
        bool isOpen = true;
    };

    std::size_t Append(ZAMRef<ZAMPrtDefsElt> definition);
    [[nodiscard]] std::optional<Position> IndexNewChildren(const ZAMPrintSVGReference& id);
    void Index(std::size_t definition, std::size_t end);
    void Forget(std::size_t definition);
    [[nodiscard]] ZAMPrtGraphicPrimitiveElt* ChildAt(const Position& position) const;

    ZAMListPtrZAMPrtDefsElt _List;
    std::vector<Frame> _Frames;         // one for each definition of the list
    std::vector<std::size_t> _NotReady; // the definitions that are open, or closed and not yet indexed; in order
    std::unordered_map<ZAMPrintSVGReference, Matches, ZAMPrintSVGReference::Hash> _Index;
};
