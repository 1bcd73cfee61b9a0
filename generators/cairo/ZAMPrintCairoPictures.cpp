// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoPictures.h"

#include "generators/cairo/ZAMPrintCairoLimits.h"
#include "generators/cairo/ZAMPrintCairoPixels.h"
#include "generators/cairo/ZAMPrintCairoPngWriter.h"

#include <algorithm>
#include <memory>

namespace {

int LimitSide(int side) {
    return std::min(side, static_cast<int>(ZAMPrintCairoLimits::kLargestPictureSide));
}

bool IsWhole(const ZAMPixelImage& image, const ZAMPrintCairoPictures::Form& form) {
    return form.width == image.GetWidth() && form.height == image.GetHeight() &&
           form.columns == LimitSide(form.width) && form.rows == LimitSide(form.height) && !form.IsRepeated() &&
           form.halvings == 0;
}

/// Without memory for it the surface stays as it is.
void Attach(cairo_surface_t* surface, const char* type, std::string bytes) {
    auto* kept = std::make_unique<std::string>(std::move(bytes)).release();
    const auto destroy = [](void* closure) { delete static_cast<std::string*>(closure); };
    if (cairo_surface_set_mime_data(surface, type, reinterpret_cast<const unsigned char*>(kept->data()), kept->size(),
                                    destroy, kept) != CAIRO_STATUS_SUCCESS) {
        destroy(kept);
    }
}

/// Under one name a document stores a picture once, whatever surfaces it comes on.
void SetName(cairo_surface_t* surface, const std::string& image, const ZAMPrintCairoPictures::Form& form) {
    std::string name = image;
    std::apply([&name](auto... number) { ((name += '.' + std::to_string(number)), ...); }, form.AsTuple());
    Attach(surface, CAIRO_MIME_TYPE_UNIQUE_ID, std::move(name));
}

/// Attaches the file that the image was read from, when it was a JPEG and the image outlives the surface.
bool SetJpeg(cairo_surface_t* surface, const ZAMPixelImage& image) {
    const auto jpeg = image.GetJpeg();
    return !jpeg.empty() && cairo_surface_set_mime_data(surface, CAIRO_MIME_TYPE_JPEG, jpeg.data(), jpeg.size(),
                                                        nullptr, nullptr) == CAIRO_STATUS_SUCCESS;
}

std::size_t CountPixels(cairo_surface_t* surface) {
    return surface == nullptr ? 0
                              : static_cast<std::size_t>(cairo_image_surface_get_width(surface)) *
                                    static_cast<std::size_t>(cairo_image_surface_get_height(surface));
}

ZAMPrintCairoSurface Halve(cairo_surface_t* surface) {
    return ZAMPrintCairoPixels(surface).Shrink(std::max(1, cairo_image_surface_get_width(surface) / 2),
                                               std::max(1, cairo_image_surface_get_height(surface) / 2));
}

} // namespace

ZAMPrintCairoPictures::Form ZAMPrintCairoPictures::Form::Of(int x, int y, int width, int height) {
    const int columns = LimitSide(width);
    const int rows = LimitSide(height);
    return {x, y, width, height, columns, rows, 0, 0, columns, rows, 0};
}

cairo_surface_t* ZAMPrintCairoPictures::Find(const ZAMRef<ZAMPixelImage>& image, const Form& form) {
    Known& known = FindImage(image);
    const auto found = known.surfaces.find(form);
    const bool isNew = found == known.surfaces.end();
    cairo_surface_t* surface = isNew ? FindNew(known, form) : found->second.get();
    const bool isFree = isNew && IsWhole(*image, form);
    return surface == nullptr || _Fate != Fate::Written || isFree ? surface : Coarsen(surface, known, form);
}

cairo_surface_t* ZAMPrintCairoPictures::FindNew(Known& known, const Form& form) {
    const ZAMPixelImage& image = *known.image;
    if (!IsWhole(image, form) && !Spend(form)) {
        return nullptr;
    }
    ZAMPrintCairoSurface surface = Make(known, form);
    if (surface != nullptr && _Fate != Fate::Painted) {
        SetName(surface.get(), known.name, form);
        const bool isJpeg = IsWhole(image, form) && SetJpeg(surface.get(), image);
        if (_Fate == Fate::Filed && !isJpeg) {
            Attach(surface.get(), CAIRO_MIME_TYPE_PNG, ZAMPrintCairoPngWriter::Encode(surface.get()));
        }
    }
    return (known.surfaces[form] = std::move(surface)).get();
}

cairo_surface_t* ZAMPrintCairoPictures::Coarsen(cairo_surface_t* surface, Known& known, const Form& form) {
    using namespace ZAMPrintCairoLimits;
    const std::size_t excess = _Written - std::min(_Written, kMostWrittenPixels);
    const std::size_t halvings = (excess + kWrittenPixelsToHalve - 1) / kWrittenPixelsToHalve;
    Form coarse = form;
    while (coarse.halvings < static_cast<int>(halvings) && CountPixels(surface) > 1) {
        ++coarse.halvings;
        ZAMPrintCairoSurface& half = known.surfaces[coarse];
        if (half == nullptr) {
            half = Halve(surface);
            if (half == nullptr) {
                break;
            }
            SetName(half.get(), known.name, coarse);
        }
        surface = half.get();
    }
    const bool isJpeg = coarse.halvings == 0 && IsWhole(*known.image, form) && !known.image->GetJpeg().empty();
    _Written += kPixelsForEachPicture + (isJpeg ? known.image->GetJpeg().size() : CountPixels(surface));
    return surface;
}

const ZAMPrintCairoRings* ZAMPrintCairoPictures::FindRings(const ZAMRef<ZAMPixelImage>& image, double aspect) {
    static_cast<void>(FindImage(image)); // holds on to it
    const auto [place, isNew] = _Rings.try_emplace({image.Get(), static_cast<float>(aspect)});
    if (isNew && ZAMPrintCairoRings::AreSought(*image, aspect) && SpendSearch(*image)) {
        place->second = ZAMPrintCairoRings::Find(*image, aspect);
    }
    return place->second ? &*place->second : nullptr;
}

bool ZAMPrintCairoPictures::SpendEdges(double squaredLength) {
    _Edges += squaredLength;
    return _Edges <= ZAMPrintCairoLimits::kMostSmoothEdges;
}

void ZAMPrintCairoPictures::EndPage() {
    _Made = 0;
    _Edges = 0.0;
    _Written = 0;
    for (auto& [key, known] : _Images) {
        std::erase_if(known.surfaces,
                      [&image = *known.image](const auto& made) { return !IsWhole(image, made.first); });
    }
}

ZAMPrintCairoPictures::Known& ZAMPrintCairoPictures::FindImage(const ZAMRef<ZAMPixelImage>& image) {
    Known& known = _Images[image.Get()];
    if (!known.image) {
        known.name = std::to_string(_Images.size());
        known.image = image;
    }
    return known;
}

/// Takes a surface's memory from that of the page. Where nothing is kept, what is there makes room.
bool ZAMPrintCairoPictures::Spend(const Form& form) {
    const bool isCopied = form.IsRepeated() || !form.KeepsPixels();
    const std::size_t copied =
        isCopied ? static_cast<std::size_t>(form.windowX) * static_cast<std::size_t>(form.windowY) : 0;
    const std::size_t pixels = copied + ZAMPrintCairoLimits::kPixelsForEachPicture;
    if (_Made + pixels > ZAMPrintCairoLimits::kMostMadePixels && _Fate == Fate::Painted) {
        EndPage();
    }
    _Made += pixels;
    return _Made <= ZAMPrintCairoLimits::kMostMadePixels;
}

bool ZAMPrintCairoPictures::SpendCell(const Cell& cell) {
    _CellsMade += static_cast<std::size_t>(cell.columns) * static_cast<std::size_t>(cell.rows) +
                  ZAMPrintCairoLimits::kPixelsForEachPicture;
    return _CellsMade <= ZAMPrintCairoLimits::kMostMadePixels;
}

bool ZAMPrintCairoPictures::SpendSearch(const ZAMPixelImage& image) {
    _Searched += image.GetPixels().size();
    return _Searched <= ZAMPrintCairoLimits::kMostSearchedPixels;
}

ZAMPrintCairoSurface ZAMPrintCairoPictures::Make(const Known& known, const Form& form) const {
    const ZAMPrintCairoPixels part = ZAMPrintCairoPixels(*known.image).Cut(form.x, form.y, form.width, form.height);
    ZAMPrintCairoSurface shrunk = form.KeepsPixels() ? part.Wrap() : part.Shrink(form.columns, form.rows);
    if (shrunk == nullptr || !form.IsRepeated()) {
        return shrunk;
    }
    return ZAMPrintCairoPixels(shrunk.get()).Repeat(form.fromX, form.fromY, form.windowX, form.windowY);
}
