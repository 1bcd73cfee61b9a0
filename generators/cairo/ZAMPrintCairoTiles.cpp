// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoTiles.h"

#include "generators/cairo/ZAMPrintCairoLimits.h"
#include "generators/cairo/ZAMPrintCairoMap.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

using Kind = ZAMPrintCairoCanvas::Kind;

namespace {

/// Of bitmaps on top of each other so many are drawn along each axis: those on top. With all that may lie below them
/// the work would have no end.
constexpr double kMostLayers = 3.0;

/// A source of one colour, that of a surface of one pixel.
ZAMPrintCairoPattern MakeSolid(cairo_surface_t* surface) {
    constexpr double kFull = 255.0;
    std::uint32_t pixel = 0;
    std::memcpy(&pixel, cairo_image_surface_get_data(surface), sizeof(pixel));
    const bool isOpaque = cairo_image_surface_get_format(surface) == CAIRO_FORMAT_RGB24;
    const double alpha = isOpaque ? kFull : pixel >> 24U;
    const auto component = [&](unsigned int shift) { return (pixel >> shift & 0xFFU) / std::max(alpha, 1.0); };
    return ZAMPrintCairoPattern(cairo_pattern_create_rgba(component(16), component(8), component(0), alpha / kFull));
}

/// None of null.
ZAMPrintCairoTiles::Sources ToSources(ZAMPrintCairoPattern source) {
    ZAMPrintCairoTiles::Sources sources;
    if (source != nullptr) {
        sources.push_back(std::move(source));
    }
    return sources;
}

} // namespace

ZAMPrintCairoTiles::ZAMPrintCairoTiles(const ZAMPrintCairoCanvas& canvas, ZAMPrintCairoPictures& pictures,
                                       const ZAMPrtFillPattern& pattern, const ZAMMathAffine2D& toDevice,
                                       const ZAMMathBox2D& area)
    : _Context(canvas.GetContext()), _Kind(canvas.GetKind()), _Pictures(pictures), _Image(pattern.image),
      _ToDevice(toDevice), _Area(area), _Painter(_Context, _Kind, canvas.GetPage(), pictures) {
    const ZAMMathBox2D shown = ZAMPrintCairoMap::Invert(toDevice).Apply(area);
    const ZAMMathVector2D spacing = ZAMPrintCairoMap::GetSpacing(toDevice);
    const ZAMMathVector2D& step = pattern.step;
    _X = MakeAxis(pattern.refPoint.x, pattern.size.x, step.x, shown.xMin, shown.xMax, _Image->GetWidth());
    _X.length = step.x * std::hypot(toDevice.a, toDevice.b);
    _X.spacing = step.x * spacing.x;
    _Y = MakeAxis(pattern.refPoint.y, pattern.size.y, step.y, shown.yMin, shown.yMax, _Image->GetHeight());
    _Y.length = step.y * std::hypot(toDevice.c, toDevice.d);
    _Y.spacing = step.y * spacing.y;
}

ZAMPrintCairoTiles::Sources ZAMPrintCairoTiles::MakeSources() {
    // Beyond these numbers nobody knows where a bitmap starts.
    constexpr double kMostExact = 4503599627370496.0;
    const double count = _X.count * _Y.count;
    // Written so that NaN ends here.
    if (!(count >= 1.0 && std::abs(_X.first) < kMostExact && std::abs(_Y.first) < kMostExact) ||
        ZAMPrintCairoMap::IsFlat(_ToDevice)) {
        return {};
    }
    // Those with huge pixels would be too much for readers and for fixed point; each for itself is cut.
    const bool isHuge = IsHuge(_X) || IsHuge(_Y);
    if (count <= (IsSeamless() && !isHuge ? 1.0 : ZAMPrintCairoLimits::kMostSingleTiles)) {
        return DrawSingly();
    }
    if (!IsSeamless()) {
        IncludeGaps();
    }
    return DrawTogether();
}

/// A difference of less than a pixel of most bitmaps comes from rounding; it would make a gap that nobody wants.
bool ZAMPrintCairoTiles::IsSeamless() const {
    const auto isSeamless = [](const Axis& axis) { return std::abs(axis.size - axis.step) <= axis.step / 512.0; };
    return isSeamless(_X) && isSeamless(_Y);
}

bool ZAMPrintCairoTiles::Axis::IsSmall() const {
    return spacing < ZAMPrintCairoLimits::kSmallestCell;
}

/// Two bitmaps of a PDF reach as far as a picture may, or farther.
bool ZAMPrintCairoTiles::IsLong(const Axis& axis) const {
    return _Kind == Kind::Vector && axis.length > _Painter.GetLongestSide() / 2.0;
}

bool ZAMPrintCairoTiles::IsHuge(const Axis& axis) const {
    const bool hasLargePixels = axis.length > axis.pixels * ZAMPrintCairoLimits::kLargestPixel;
    return hasLargePixels && (_Kind == Kind::Picture || IsLong(axis));
}

ZAMPrintCairoTiles::Axis ZAMPrintCairoTiles::MakeAxis(double origin, double size, double step, double from, double to,
                                                      int pixels) {
    Axis axis;
    axis.origin = origin;
    axis.size = size;
    axis.step = step;
    axis.pixels = pixels;
    axis.first = std::floor((from - origin - std::min(size, kMostLayers * step)) / step) + 1.0;
    axis.count = std::max(0.0, std::ceil((to - origin) / step) - axis.first);
    axis.from = (from - axis.PlaceOf(0)) / step;
    axis.to = (to - axis.PlaceOf(0)) / step;
    return axis;
}

ZAMPrintCairoTiles::Extent ZAMPrintCairoTiles::MakeExtent(const Axis& axis) const {
    const int most = std::min(axis.pixels, static_cast<int>(ZAMPrintCairoLimits::kLargestPictureSide));
    int pixels = most;
    if (axis.spacing < ZAMPrintCairoLimits::kSmallestTile) {
        pixels = 1;
    } else if (_Kind == Kind::Picture) {
        // One for each device unit: cairo takes twenty times as long when it has to reduce what it repeats.
        pixels = static_cast<int>(std::clamp<double>(std::round(axis.spacing), 1.0, most));
    } else if (axis.IsSmall()) {
        pixels = ZAMPrintCairoPicturePainter::ReducePixels(most, axis.spacing * ZAMPrintCairoLimits::kFinestCell);
    }
    const bool isEnlarged = axis.IsSmall() && (_Kind == Kind::Vector || pixels == 1);
    return {pixels, 0.0, isEnlarged ? std::ceil(ZAMPrintCairoLimits::kSmallestCell / axis.spacing) : 1.0};
}

/// Makes the picture one of all that the area shows: whole bitmaps, so that other fills can show it too, or of long
/// ones as many pixels as are needed.
void ZAMPrintCairoTiles::ShowAll(Extent& x, Extent& y) const {
    const std::pair<Extent*, const Axis*> sides[] = {{&x, &_X}, {&y, &_Y}};
    for (const auto& [extent, axis] : sides) {
        extent->pixels =
            ZAMPrintCairoPicturePainter::ReducePixels(extent->pixels, axis->spacing * ZAMPrintCairoLimits::kFinestCell);
        extent->bitmaps = IsLong(*axis) ? std::min(axis->count, axis->to - axis->from) : axis->count;
    }
    const double pixels = double(x.CountPixels()) * y.CountPixels();
    const double scale = std::sqrt(std::min(1.0, ZAMPrintCairoLimits::kMostComposedPixels / pixels));
    for (const auto& [extent, axis] : sides) {
        const double most =
            std::min(extent->pixels * scale, ZAMPrintCairoLimits::kLargestPictureSide / extent->bitmaps);
        extent->pixels = std::max(1, std::min(extent->pixels, static_cast<int>(most)));
        if (IsLong(*axis)) {
            extent->from = std::floor(std::max(axis->from, 0.0) * extent->pixels) / extent->pixels;
            const double end = std::ceil(std::min(axis->to, axis->count) * extent->pixels) / extent->pixels;
            extent->bitmaps = end - extent->from;
        }
    }
}

/// Each bitmap as a picture of its own, row by row.
ZAMPrintCairoTiles::Sources ZAMPrintCairoTiles::DrawSingly() {
    return DrawInGroups([this](const ZAMMathBox2D& /*part*/) {
        if (_Kind == Kind::Picture && IsSeamless()) {
            // What two neighbours cover of a pixel adds up.
            cairo_set_operator(_Context, CAIRO_OPERATOR_ADD);
        }
        for (int row = 0; row < _Y.count; ++row) {
            for (int column = 0; column < _X.count; ++column) {
                _Painter.Draw(_Image, _ToDevice * ZAMMathAffine2D{_X.size, 0.0, 0.0, _Y.size, _X.PlaceOf(column),
                                                                  _Y.PlaceOf(row)});
            }
        }
    });
}

/// A picture of one or more bitmaps, which cairo repeats or, if they are all, shows once.
ZAMPrintCairoTiles::Sources ZAMPrintCairoTiles::DrawTogether() {
    Extent x = MakeExtent(_X);
    Extent y = MakeExtent(_Y);
    const bool isAll = _Kind == Kind::Vector && std::ceil(_X.count / x.bitmaps) * std::ceil(_Y.count / y.bitmaps) <=
                                                    ZAMPrintCairoLimits::kFewTiles;
    if (isAll) {
        ShowAll(x, y);
    }
    ZAMPrintCairoPictures::Form form = ZAMPrintCairoPictures::Form::Of(*_Image);
    form.columns = x.pixels;
    form.rows = y.pixels;
    form.windowX = x.CountPixels();
    form.windowY = y.CountPixels();
    form.fromX = x.FirstPixel();
    // Rows are counted from above, bitmaps from below; the last of these is whole.
    form.fromY = (y.pixels - (y.FirstPixel() + form.windowY) % y.pixels) % y.pixels;
    cairo_surface_t* surface = _Pictures.Find(_Image, form);
    if (surface == nullptr) {
        return {};
    }
    if (form.columns == 1 && form.rows == 1) {
        return ToSources(MakeSolid(surface));
    }
    const ZAMMathAffine2D toDevice = _ToDevice * ZAMMathAffine2D{x.bitmaps * _X.step,
                                                                 0.0,
                                                                 0.0,
                                                                 y.bitmaps * _Y.step,
                                                                 _X.PlaceOf(0) + x.from * _X.step,
                                                                 _Y.PlaceOf(0) + y.from * _Y.step};
    return _Kind == Kind::Picture
               ? RepeatInPicture(surface, toDevice)
               : ToSources(_Painter.MakeSource(surface, toDevice, isAll ? CAIRO_EXTEND_NONE : CAIRO_EXTEND_REPEAT));
}

/// The repeats near each part of the area are reckoned from a bitmap there, because cairo's fixed point does not reach
/// far.
ZAMPrintCairoTiles::Sources ZAMPrintCairoTiles::RepeatInPicture(cairo_surface_t* surface,
                                                                const ZAMMathAffine2D& toDevice) {
    const ZAMMathAffine2D fromDevice = ZAMPrintCairoMap::Invert(toDevice);
    return DrawInGroups([&](const ZAMMathBox2D& part) {
        _Painter.PaintInBlocks(part, [&](const ZAMMathPoint2D& middle) {
            const ZAMMathPoint2D place = fromDevice.Apply(middle);
            const ZAMMathAffine2D near =
                toDevice * ZAMMathAffine2D{1.0, 0.0, 0.0, 1.0, std::floor(place.x), std::floor(place.y)};
            const auto source = _Painter.MakeSource(surface, near, CAIRO_EXTEND_REPEAT);
            if (source != nullptr) {
                cairo_set_source(_Context, source.get());
                cairo_paint(_Context);
            }
        });
    });
}

/// What `draw` draws on the context within each part of the area: usually there is one.
template <class Draw> ZAMPrintCairoTiles::Sources ZAMPrintCairoTiles::DrawInGroups(const Draw& draw) {
    constexpr int kSide = ZAMPrintCairoLimits::kLongestSource;
    Sources sources;
    for (int y = static_cast<int>(_Area.yMin); y < _Area.yMax; y += kSide) {
        for (int x = static_cast<int>(_Area.xMin); x < _Area.xMax; x += kSide) {
            const ZAMMathBox2D part = _Area.Intersection({double(x), double(y), double(x) + kSide, double(y) + kSide});
            cairo_save(_Context);
            cairo_rectangle(_Context, part.xMin, part.yMin, part.Width(), part.Height());
            cairo_clip(_Context);
            cairo_push_group(_Context);
            draw(part);
            sources.emplace_back(cairo_pop_group(_Context));
            cairo_restore(_Context);
        }
    }
    return sources;
}

/// From now on the image is a bitmap as large as the step. Without memory for it the gap closes.
void ZAMPrintCairoTiles::IncludeGaps() {
    constexpr double kLargestCell = 1024.0;
    const double density = _Kind == Kind::Picture ? 2.0 : 8.0;
    const auto count = [&](const Axis& axis) {
        return static_cast<int>(std::clamp(std::ceil(axis.spacing * density), 1.0, kLargestCell));
    };
    const int columns = count(_X);
    const int rows = count(_Y);
    const ZAMPrintCairoPictures::Cell cell{_Image.Get(), columns, rows, _X.size / _X.step, _Y.size / _Y.step};
    if (auto image = _Pictures.FindCell(cell, [&] { return MakeCell(columns, rows); })) {
        _Image = std::move(image);
        _X.pixels = columns;
        _Y.pixels = rows;
    }
}

ZAMRef<ZAMPixelImage> ZAMPrintCairoTiles::MakeCell(int columns, int rows) {
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows));
    const ZAMPrintCairoSurface surface(cairo_image_surface_create_for_data(
        reinterpret_cast<unsigned char*>(pixels.data()), CAIRO_FORMAT_ARGB32, columns, rows, columns * 4));
    const ZAMPrintCairoContext context(cairo_create(surface.get()));
    ZAMPrintCairoPicturePainter painter(context.get(), Kind::Picture, {0.0, 0.0, double(columns), double(rows)},
                                        _Pictures);
    const auto layers = [](const Axis& axis) {
        return static_cast<int>(std::min(std::ceil(axis.size / axis.step), kMostLayers));
    };
    const ZAMMathAffine2D bitmap{_X.size / _X.step, 0.0, 0.0, _Y.size / _Y.step, 0.0, 0.0};
    const ZAMMathAffine2D toCell{double(columns), 0.0, 0.0, -double(rows), 0.0, double(rows)};
    for (int row = 1 - layers(_Y); row <= 0; ++row) {
        for (int column = 1 - layers(_X); column <= 0; ++column) {
            painter.Draw(_Image, toCell * ZAMMathAffine2D{1.0, 0.0, 0.0, 1.0, double(column), double(row)} * bitmap);
        }
    }
    cairo_surface_flush(surface.get());
    return ZAMNew<ZAMPixelImage>(columns, rows, std::move(pixels));
}
