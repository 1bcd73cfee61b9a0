// SPDX-License-Identifier: MIT
#pragma once

#include "framework/fonts/ZAMPrintFontsTable.h"

#include <memory>
#include <pango/pangoft2.h>
#include <vector>

/// Releases what the text libraries count.
struct ZAMFontsUnref {
    void operator()(void* object) const { g_object_unref(object); }
    void operator()(PangoFontDescription* description) const { pango_font_description_free(description); }
    void operator()(PangoAttrList* list) const { pango_attr_list_unref(list); }
    void operator()(PangoGlyphString* glyphs) const { pango_glyph_string_free(glyphs); }
    void operator()(PangoItem* item) const { pango_item_free(item); }
};
template <class T> using ZAMFontsRef = std::unique_ptr<T, ZAMFontsUnref>;

/// Lays out single lines at a nominal size: itemises, orders and shapes with Pango's parts. A line is never measured as
/// a whole, because Pango's whole numbers end at some 2,000 em.
class ZAMFontsLineShaper {
public:
    ZAMFontsLineShaper();

    bool Shape(const ZAMFontsShapeRequest& request, const ZAMFontsShapeSink& sink);

private:
    using Item = ZAMFontsRef<PangoItem>;

    std::vector<Item> Itemize(const ZAMFontsShapeRequest& request);
    void ShapeItem(Item& item, const ZAMFontsShapeRequest& request, const ZAMFontsShapeSink& sink);
    void ReadGlyphs(PangoFont* font);
    void ReadClusters(int length, bool rightToLeft);

    ZAMFontsRef<PangoFontMap> _Map;
    ZAMFontsRef<PangoContext> _Context;
    ZAMFontsRef<PangoGlyphString> _Shaped;
    std::vector<ZAMFontsGlyph> _Glyphs;
    std::vector<ZAMFontsCluster> _Clusters;
};
