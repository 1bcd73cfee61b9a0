// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoGlyphs.h"

#include "generators/cairo/ZAMPrintCairoWorld.h"

#include <algorithm>
#include <utf8proc.h>

namespace {

/// A cluster with the marks that belong to it.
struct Letter {
    std::size_t bytes;
    std::size_t glyphs; ///< the marks among them
    std::size_t marks;
};

bool IsMark(std::string_view text) {
    utf8proc_int32_t character = -1;
    utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data()), static_cast<utf8proc_ssize_t>(text.size()),
                     &character);
    // What is no character has the category of one that is not assigned.
    const utf8proc_category_t category = utf8proc_category(character);
    return category == UTF8PROC_CATEGORY_MN || category == UTF8PROC_CATEGORY_ME;
}

/// In the order of the text.
std::vector<Letter> FindLetters(std::span<const ZAMTextCluster> clusters, std::string_view text) {
    std::vector<Letter> letters;
    for (const ZAMTextCluster& cluster : clusters) {
        if (!letters.empty() && IsMark(text.substr(0, cluster.bytes))) {
            letters.back().bytes += cluster.bytes;
            letters.back().glyphs += cluster.glyphs;
            letters.back().marks += cluster.glyphs;
        } else {
            letters.push_back({cluster.bytes, cluster.glyphs, 0});
        }
        text.remove_prefix(cluster.bytes);
    }
    return letters;
}

bool IsNear(const cairo_glyph_t& glyph) {
    return ZAMPrintCairoWorld::Contains(ZAMPrintCairoWorld::kBox, ZAMMathPoint2D{glyph.x, glyph.y});
}

} // namespace

ZAMPrintCairoGlyphs::ZAMPrintCairoGlyphs(const ZAMTextLayout& layout, const ZAMTextRun& run,
                                         const ZAMMathAffine2D& toDevice) {
    std::vector<cairo_glyph_t> places;
    for (const ZAMTextGlyph& glyph : layout.GetGlyphs(run)) {
        const ZAMMathPoint2D place = toDevice.Apply(glyph.origin);
        places.push_back({glyph.id, place.x, place.y});
    }
    std::string_view text = layout.GetText(run);
    std::vector<Letter> letters = FindLetters(layout.GetClusters(run), text);
    if (run.rightToLeft) {
        std::reverse(letters.begin(), letters.end());
    }
    std::span<cairo_glyph_t> rest(places);
    for (const Letter& letter : letters) {
        const std::span<cairo_glyph_t> glyphs = rest.first(letter.glyphs);
        const std::size_t start = run.rightToLeft ? text.size() - letter.bytes : 0;
        if (run.rightToLeft) {
            // The marks stand before the letter.
            std::rotate(glyphs.begin(), glyphs.begin() + static_cast<std::ptrdiff_t>(letter.marks), glyphs.end());
        }
        if (std::all_of(glyphs.begin(), glyphs.end(), IsNear)) {
            AddText(text.substr(start, letter.bytes), run.rightToLeft);
            AddGlyphs(glyphs, letter.bytes, letter.marks);
        }
        rest = rest.subspan(letter.glyphs);
        run.rightToLeft ? text.remove_suffix(letter.bytes) : text.remove_prefix(letter.bytes);
    }
}

void ZAMPrintCairoGlyphs::Show(cairo_t* context) const {
    if (!_Glyphs.empty()) {
        cairo_show_text_glyphs(context, _Text.data(), static_cast<int>(_Text.size()), _Glyphs.data(),
                               static_cast<int>(_Glyphs.size()), _Clusters.data(), static_cast<int>(_Clusters.size()),
                               cairo_text_cluster_flags_t{});
    }
}

void ZAMPrintCairoGlyphs::AddText(std::string_view text, bool isBackward) {
    if (!isBackward) {
        _Text += text;
        return;
    }
    for (std::size_t end = text.size(); end > 0;) {
        std::size_t start = end - 1;
        // Well-formed UTF-8: back to the character's first byte.
        while (start > 0 && (static_cast<unsigned char>(text[start]) & 0xC0U) == 0x80U) {
            --start;
        }
        _Text += text.substr(start, end - start);
        end = start;
    }
}

void ZAMPrintCairoGlyphs::AddGlyphs(std::span<const cairo_glyph_t> glyphs, std::size_t bytes, std::size_t marks) {
    _Glyphs.insert(_Glyphs.end(), glyphs.begin(), glyphs.end());
    _Clusters.push_back({static_cast<int>(bytes), static_cast<int>(glyphs.size() - marks)});
    if (marks > 0) {
        _Clusters.push_back({0, static_cast<int>(marks)});
    }
}
