// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathBox2D.h"
#include "prepress/document/ZAMPrepressIds.h"
#include "prepress/paint/ZAMPrepressPixels.h"
#include "prepress/paint/ZAMPrepressRamp.h"

#include <cstddef>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

/// A tile that fills leaves, before it is drawn.
struct ZAMPrepressTile {
    /// Draws it with so many pixels. Gives a PNG file, or nothing when it cannot be drawn.
    using Draw = std::function<std::string(const ZAMPrepressPixels& pixels)>;

    std::string key;                 ///< tiles that look the same in the same area have the same one
    ZAMMathBox2D area;               ///< of one tile, in the units of the leaves; it has an extent
    ZAMPrepressPixels pixels;        ///< that make it print smoothly
    ZAMPrepressPremultiplied mean{}; ///< what is painted when it cannot be drawn
    Draw draw;
};

/// The tiles of a drawing: each is drawn once, as finely as the leaf needs that shows it largest, and defined once.
class ZAMPrepressTileBook {
public:
    ZAMPrepressTileBook(ZAMPrepressTree& tree, ZAMPrepressIds& ids) : _Tree(tree), _Ids(ids) {}

    /// Fills the leaf with a tile, when the book is closed.
    void Fill(ZAMPrepressElement& leaf, ZAMPrepressTile tile);
    /// Takes over a definition that can stay as it is.
    void Keep(ZAMPrepressElement& definition);

    /// Draws the tiles and fills the leaves.
    void Close();
    /// Whether elements of patterns may be drawn still, so many of which are about to be.
    [[nodiscard]] bool Spend(std::size_t elements);
    /// What is defined yet, in an order in which each definition needs only those before it.
    [[nodiscard]] const std::vector<ZAMPrepressElement*>& GetDefinitions() const { return _Definitions; }
    /// A definition by its id; null when there is none yet.
    [[nodiscard]] ZAMPrepressElement* Find(std::string_view id) const;

private:
    struct Entry {
        ZAMPrepressTile tile;
        std::vector<ZAMPrepressElement*> leaves;
    };

    [[nodiscard]] std::size_t FindMostPixels() const;
    void Draw(const Entry& entry, const ZAMPrepressPixels& pixels);
    ZAMPrepressElement& MakeDefinition(const ZAMMathBox2D& area, std::string_view png);

    ZAMPrepressTree& _Tree;
    ZAMPrepressIds& _Ids;
    std::unordered_map<std::string, std::size_t> _Numbers;
    std::vector<Entry> _Entries;
    std::vector<ZAMPrepressElement*> _Definitions;
    std::unordered_map<std::string_view, ZAMPrepressElement*> _ById;
    std::size_t _Spent = 0;
};

/// The element is a pattern as the book defines them: one bitmap that fills its tile.
[[nodiscard]] bool ZAMPrepressIsBitmapTile(const ZAMPrepressElement& pattern);
