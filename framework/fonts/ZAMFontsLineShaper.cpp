// SPDX-License-Identifier: MIT
#include "framework/fonts/ZAMFontsLineShaper.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fontconfig/fontconfig.h>
#include <hb.h>
#include <limits>
#include <pango/pangofc-font.h>
#include <span>

namespace {

// Pango's units in the em: a multiple of 1000 and of 2048, in which fonts are designed, so that advances are exact.
constexpr double kEm = 1000.0 * PANGO_SCALE;

constexpr std::array<std::pair<int, PangoStretch>, 9> kStretches{{{50, PANGO_STRETCH_ULTRA_CONDENSED},
                                                                  {63, PANGO_STRETCH_EXTRA_CONDENSED},
                                                                  {75, PANGO_STRETCH_CONDENSED},
                                                                  {87, PANGO_STRETCH_SEMI_CONDENSED},
                                                                  {100, PANGO_STRETCH_NORMAL},
                                                                  {113, PANGO_STRETCH_SEMI_EXPANDED},
                                                                  {125, PANGO_STRETCH_EXPANDED},
                                                                  {150, PANGO_STRETCH_EXTRA_EXPANDED},
                                                                  {200, PANGO_STRETCH_ULTRA_EXPANDED}}};

PangoStretch StretchOf(int percent) {
    return std::ranges::min_element(kStretches, {},
                                    [percent](const auto& row) { return std::abs(row.first - percent); })
        ->second;
}

PangoStyle StyleOf(int slant) {
    return slant == 1 ? PANGO_STYLE_ITALIC : (slant == 2 ? PANGO_STYLE_OBLIQUE : PANGO_STYLE_NORMAL);
}

ZAMFontsRef<PangoFontDescription> DescriptionOf(const ZAMFontsShapeRequest& request) {
    ZAMFontsRef<PangoFontDescription> description(pango_font_description_new());
    pango_font_description_set_family(description.get(), request.family);
    pango_font_description_set_weight(description.get(), static_cast<PangoWeight>(request.weight));
    pango_font_description_set_style(description.get(), StyleOf(request.slant));
    pango_font_description_set_stretch(description.get(), StretchOf(request.stretch));
    pango_font_description_set_absolute_size(description.get(), kEm);
    return description;
}

ZAMFontsRef<PangoAttrList> AttributesOf(const ZAMFontsShapeRequest& request) {
    ZAMFontsRef<PangoAttrList> attributes(pango_attr_list_new());
    if (!request.ligatures) {
        pango_attr_list_insert(attributes.get(), pango_attr_font_features_new("liga=0, clig=0"));
    }
    return attributes;
}

struct LineHeight {
    double ascent = 0.8;
    double descent = 0.2;
};

LineHeight LineHeightOf(PangoFont* font) {
    hb_font_extents_t extents;
    if (font == nullptr || hb_font_get_h_extents(pango_font_get_hb_font(font), &extents) == 0) {
        return {};
    }
    return {extents.ascender / kEm, -extents.descender / kEm};
}

const char* TextOf(const FcPattern* pattern, const char* object) {
    FcChar8* text = nullptr;
    return FcPatternGetString(pattern, object, 0, &text) == FcResultMatch ? reinterpret_cast<const char*>(text) : "";
}

bool FlagOf(const FcPattern* pattern, const char* object, bool otherwise) {
    FcBool flag = FcFalse;
    return FcPatternGetBool(pattern, object, 0, &flag) == FcResultMatch ? flag == FcTrue : otherwise;
}

void ReadFace(PangoFont* font, ZAMFontsRun& run) {
    const FcPattern* pattern = pango_fc_font_get_pattern(PANGO_FC_FONT(font));
    run.font = font;
    run.file = TextOf(pattern, FC_FILE);
    FcPatternGetInteger(pattern, FC_INDEX, 0, &run.faceIndex);
    run.variations = TextOf(pattern, FC_FONT_VARIATIONS);
    run.syntheticBold = FlagOf(pattern, FC_EMBOLDEN, false);
    run.hasOutlines = FlagOf(pattern, FC_OUTLINE, true);
    FcMatrix* matrix = nullptr;
    // The matrix of a bitmap font only scales its one size.
    if (run.hasOutlines && FcPatternGetMatrix(pattern, FC_MATRIX, 0, &matrix) == FcResultMatch) {
        run.matrix[0] = matrix->xx;
        run.matrix[1] = matrix->yx;
        run.matrix[2] = matrix->xy;
        run.matrix[3] = matrix->yy;
    }
}

int QuarterTurnsOf(int gravity) {
    return gravity == PANGO_GRAVITY_EAST ? 1 : (gravity == PANGO_GRAVITY_NORTH ? 2 : 0);
}

// A cluster of very many marks costs the square of their number, so long items are shaped in pieces. Neighbours still
// see each other: joined scripts stay joined.
constexpr int kLongestPiece = 4096;

// Where to cut a text that is too long: behind a blank if there is one in the second half, else between two characters.
int CutOf(const char* text) {
    for (int cut = kLongestPiece; cut > kLongestPiece / 2; --cut) {
        if (text[cut - 1] == ' ') {
            return cut;
        }
    }
    return static_cast<int>(g_utf8_find_prev_char(text, text + kLongestPiece + 1) - text);
}

void AddInPieces(ZAMFontsRef<PangoItem> item, const char* text, std::vector<ZAMFontsRef<PangoItem>>& items) {
    while (item->length > kLongestPiece) {
        const int cut = CutOf(text + item->offset);
        items.emplace_back(
            pango_item_split(item.get(), cut, static_cast<int>(g_utf8_strlen(text + item->offset, cut))));
    }
    items.push_back(std::move(item));
}

// From the text's order to the visual one: each stretch of items at or above a level is reversed, the highest level
// first.
template <class Items> void Reorder(Items& items) {
    int highest = 0;
    int lowestOdd = std::numeric_limits<int>::max();
    for (const auto& item : items) {
        const int level = item->analysis.level;
        highest = std::max(highest, level);
        lowestOdd = level % 2 == 1 ? std::min(lowestOdd, level) : lowestOdd;
    }
    for (int level = highest; level >= lowestOdd; --level) {
        const auto isAtLevel = [level](const auto& item) { return item->analysis.level >= level; };
        auto begin = std::find_if(items.begin(), items.end(), isAtLevel);
        while (begin != items.end()) {
            const auto end = std::find_if_not(begin, items.end(), isAtLevel);
            std::reverse(begin, end);
            begin = std::find_if(end, items.end(), isAtLevel);
        }
    }
}

} // namespace

ZAMFontsLineShaper::ZAMFontsLineShaper()
    : _Map(pango_ft2_font_map_new()), _Context(pango_font_map_create_context(_Map.get())),
      _Shaped(pango_glyph_string_new()) {
    // The same layout under every locale.
    pango_context_set_language(_Context.get(), pango_language_from_string("en"));
    pango_context_set_round_glyph_positions(_Context.get(), FALSE);
    pango_context_set_gravity_hint(_Context.get(), PANGO_GRAVITY_HINT_NATURAL);
}

bool ZAMFontsLineShaper::Shape(const ZAMFontsShapeRequest& request, const ZAMFontsShapeSink& sink) {
    if (request.length > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        return false;
    }
    const auto description = DescriptionOf(request);
    pango_context_set_font_description(_Context.get(), description.get());
    pango_context_set_base_gravity(_Context.get(), request.writingMode == 2 ? PANGO_GRAVITY_EAST : PANGO_GRAVITY_SOUTH);
    const ZAMFontsRef<PangoFont> font(pango_context_load_font(_Context.get(), description.get()));
    if (font == nullptr) {
        return false;
    }
    const LineHeight height = LineHeightOf(font.get());
    sink.beginLine(sink.target, height.ascent, height.descent);
    auto items = Itemize(request);
    Reorder(items);
    for (Item& item : items) {
        ShapeItem(item, request, sink);
    }
    return true;
}

std::vector<ZAMFontsLineShaper::Item> ZAMFontsLineShaper::Itemize(const ZAMFontsShapeRequest& request) {
    const auto attributes = AttributesOf(request);
    GList* list = pango_itemize_with_base_dir(
        _Context.get(), request.writingMode == 1 ? PANGO_DIRECTION_RTL : PANGO_DIRECTION_LTR, request.text, 0,
        static_cast<int>(request.length), attributes.get(), nullptr);
    std::vector<Item> items;
    for (const GList* link = list; link != nullptr; link = link->next) {
        AddInPieces(Item(static_cast<PangoItem*>(link->data)), request.text, items);
    }
    g_list_free(list);
    return items;
}

void ZAMFontsLineShaper::ShapeItem(Item& item, const ZAMFontsShapeRequest& request, const ZAMFontsShapeSink& sink) {
    PangoFont* font = item->analysis.font;
    if (font == nullptr) {
        return;
    }
    pango_shape_item(item.get(), request.text, static_cast<int>(request.length), nullptr, _Shaped.get(),
                     PANGO_SHAPE_NONE);
    const LineHeight height = LineHeightOf(font);
    const int count = _Shaped->num_glyphs;
    const int* places = _Shaped->log_clusters;
    ZAMFontsRun run{};
    run.matrix[0] = run.matrix[3] = 1.0;
    ReadFace(font, run);
    run.quarterTurns = QuarterTurnsOf(item->analysis.gravity);
    run.ascent = height.ascent;
    run.descent = height.descent;
    run.rightToLeft =
        count > 1 && places[0] != places[count - 1] ? places[0] > places[count - 1] : item->analysis.level % 2 == 1;
    run.textStart = static_cast<std::size_t>(item->offset);
    run.textLength = static_cast<std::size_t>(item->length);
    ReadGlyphs(font);
    ReadClusters(item->length, run.rightToLeft);
    run.glyphs = _Glyphs.data();
    run.glyphCount = _Glyphs.size();
    run.clusters = _Clusters.data();
    run.clusterCount = _Clusters.size();
    sink.addRun(sink.target, &run);
}

// Characters that no font has get the font's own sign for that.
void ZAMFontsLineShaper::ReadGlyphs(PangoFont* font) {
    _Glyphs.clear();
    for (const PangoGlyphInfo& info : std::span(_Shaped->glyphs, static_cast<std::size_t>(_Shaped->num_glyphs))) {
        if (info.glyph == PANGO_GLYPH_EMPTY) {
            continue;
        }
        ZAMFontsGlyph glyph{info.glyph, info.geometry.width / kEm, info.geometry.x_offset / kEm,
                            -info.geometry.y_offset / kEm};
        if ((info.glyph & PANGO_GLYPH_UNKNOWN_FLAG) != 0) {
            glyph = {0, hb_font_get_glyph_h_advance(pango_font_get_hb_font(font), 0) / kEm, 0.0, 0.0};
        }
        _Glyphs.push_back(glyph);
    }
}

// A cluster reaches from where its glyphs say that it starts to where the next one does.
void ZAMFontsLineShaper::ReadClusters(int length, bool rightToLeft) {
    _Clusters.clear();
    const int count = _Shaped->num_glyphs;
    int start = 0;
    std::uint32_t glyphs = 0;
    for (int i = 0; i < count; ++i) {
        const int glyph = rightToLeft ? count - 1 - i : i;
        const int place = _Shaped->log_clusters[glyph];
        if (place > start) {
            _Clusters.push_back({static_cast<std::uint32_t>(place - start), glyphs});
            start = place;
            glyphs = 0;
        }
        glyphs += _Shaped->glyphs[glyph].glyph == PANGO_GLYPH_EMPTY ? 0U : 1U;
    }
    _Clusters.push_back({static_cast<std::uint32_t>(length - start), glyphs});
}
