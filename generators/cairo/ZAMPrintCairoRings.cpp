// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoRings.h"

#include "generators/cairo/ZAMPrintCairoMap.h"

#include <algorithm>
#include <cmath>

namespace {

// So far may a pixel be off in any channel, of 255: half by its own rounding, and what a ring changes across a pixel.
constexpr double kTolerance = 3.0;
// And so far a ring from the straight line between two stops.
constexpr double kStopTolerance = 0.75;
// No place of the centre brings a pixel that is so far off to where it should be.
constexpr double kHopeless = 48.0;
// Colours that are nearer to each other are lost in what a pixel may be off.
constexpr double kSmallestRange = 8.0 * kTolerance;
constexpr int kFewestPixels = 16;
constexpr int kMostPixels = 1024;
// Of a picture with enough of them, the rows and columns that tell most pictures from rings.
constexpr int kSampleStep = 4;

double ChannelOf(std::uint32_t pixel, std::size_t channel) {
    return pixel >> (8 * channel) & 0xFFU;
}

// Quicker than std::hypot, and nothing overflows here.
double GetDistance(const ZAMMathPoint2D& one, const ZAMMathPoint2D& other) {
    const double x = one.x - other.x;
    const double y = one.y - other.y;
    return std::sqrt(x * x + y * y);
}

// One number that changes with every colour.
double Mix(std::uint32_t pixel) {
    return 2.0 * ChannelOf(pixel, 0) + 5.0 * ChannelOf(pixel, 1) + 3.0 * ChannelOf(pixel, 2) +
           4.0 * ChannelOf(pixel, 3);
}

// Equations a x + b y = c, more than can be solved.
class Equations {
public:
    void Add(double a, double b, double c) {
        _AA += a * a;
        _AB += a * b;
        _BB += b * b;
        _AC += a * c;
        _BC += b * c;
    }
    // What comes nearest to all of them; nothing when they say too little of one of the two.
    [[nodiscard]] std::optional<ZAMMathPoint2D> Solve() const {
        const double determinant = _AA * _BB - _AB * _AB;
        if (!(determinant > 1e-4 * (_AA + _BB) * (_AA + _BB))) {
            return std::nullopt;
        }
        return ZAMMathPoint2D{(_AC * _BB - _BC * _AB) / determinant, (_BC * _AA - _AC * _AB) / determinant};
    }

private:
    double _AA = 0.0;
    double _AB = 0.0;
    double _BB = 0.0;
    double _AC = 0.0;
    double _BC = 0.0;
};

} // namespace

class ZAMPrintCairoRings::Pixels {
public:
    // Each pixel of each `step`th row and column.
    Pixels(const ZAMPixelImage& image, double aspect, int step)
        : _Pixels(image.GetPixels()), _Width(image.GetWidth()), _Height(image.GetHeight()), _Aspect(aspect),
          _Step(step) {}

    // Until `take` says that it has enough.
    template <class Take> void ForEach(const Take& take) const {
        for (int y = 0; y < _Height; y += _Step) {
            for (int x = 0; x < _Width; x += _Step) {
                if (!take(PlaceOf(x, y), At(x, y))) {
                    return;
                }
            }
        }
    }

    // Where the steepest lines through all pixels meet, as nearly as they do; nothing where they are parallel.
    [[nodiscard]] std::optional<ZAMMathPoint2D> FindCentre() const {
        // Neighbours differ by too little, most of it rounding.
        const int reach = std::max(1, std::min(_Width, _Height) / 32);
        Equations equations;
        for (int y = reach; y < _Height - reach; y += _Step) {
            for (int x = reach; x < _Width - reach; x += _Step) {
                const double dx = Mix(At(x + reach, y)) - Mix(At(x - reach, y));
                const double dy = (Mix(At(x, y + reach)) - Mix(At(x, y - reach))) / _Aspect;
                const ZAMMathPoint2D place = PlaceOf(x, y);
                equations.Add(dy, -dx, dy * place.x - dx * place.y);
            }
        }
        return equations.Solve();
    }

    [[nodiscard]] double FarthestFrom(const ZAMMathPoint2D& place) const {
        return std::hypot(std::max(place.x, _Width - place.x), std::max(place.y, _Height * _Aspect - place.y));
    }

private:
    [[nodiscard]] std::uint32_t At(int x, int y) const {
        return _Pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(_Width) + static_cast<std::size_t>(x)];
    }
    [[nodiscard]] ZAMMathPoint2D PlaceOf(int x, int y) const { return {x + 0.5, (y + 0.5) * _Aspect}; }

    std::span<const std::uint32_t> _Pixels;
    int _Width;
    int _Height;
    double _Aspect;
    int _Step;
};

bool ZAMPrintCairoRings::AreSought(const ZAMPixelImage& image, double aspect) {
    const int fewest = std::min(image.GetWidth(), image.GetHeight());
    const int most = std::max(image.GetWidth(), image.GetHeight());
    return fewest >= kFewestPixels && most <= kMostPixels && aspect > 0.1 && aspect < 10.0;
}

std::optional<ZAMPrintCairoRings> ZAMPrintCairoRings::Find(const ZAMPixelImage& image, double aspect) {
    if (!AreSought(image, aspect)) {
        return std::nullopt;
    }
    const bool isLarge = std::min(image.GetWidth(), image.GetHeight()) >= kSampleStep * kFewestPixels;
    const Pixels sample(image, aspect, isLarge ? kSampleStep : 1);
    const auto centre = sample.FindCentre();
    auto found = centre ? FindAbout(*centre, sample) : std::nullopt;
    if (found && isLarge) {
        found = FindAbout(found->_Centre, Pixels(image, aspect, 1));
    }
    if (!found || !found->IsSmooth() || !found->IsSeen()) {
        return std::nullopt;
    }
    found->Straighten();
    found->_Stops.push_back(0);
    found->ChooseStops(0, found->_Rings.size() - 1);
    return found;
}

/// The rings whose centre is near a place.
std::optional<ZAMPrintCairoRings> ZAMPrintCairoRings::FindAbout(const ZAMMathPoint2D& place, const Pixels& pixels) {
    if (!(pixels.FarthestFrom(place) < 2.0 * kMostPixels)) {
        return std::nullopt;
    }
    ZAMPrintCairoRings found(pixels, place);
    constexpr std::size_t kMostSteps = 6;
    std::array<double, kMostSteps + 1> errors{};
    ZAMMathVector2D last{0.0, 0.0};
    for (std::size_t step = 0;; ++step) {
        const double error = errors[step] = found.FindError(pixels);
        if (error <= kTolerance) {
            return found;
        }
        // In two steps rings come to less than half the error.
        const bool isVain = error > kHopeless || (step >= 2 && error > errors[step - 2] / 2.0);
        const auto way = isVain || step == kMostSteps ? std::nullopt : found.FindWay(pixels);
        if (!way) {
            return std::nullopt;
        }
        // Rings about the wrong place are blurred, which makes all ways too short by the same factor.
        const double square = last.x * last.x + last.y * last.y;
        const double factor = square > 0.0 ? (last.x * way->x + last.y * way->y) / square : 0.0;
        const double stretch = 1.0 / (1.0 - std::clamp(factor, 0.0, 0.9));
        last = step % 2 == 0 ? *way : ZAMMathVector2D{0.0, 0.0};
        found = ZAMPrintCairoRings(pixels, {found._Centre.x + stretch * way->x, found._Centre.y + stretch * way->y});
    }
}

/// Each ring is the mean of its pixels; each pixel is shared by the two rings that it lies between.
ZAMPrintCairoRings::ZAMPrintCairoRings(const Pixels& pixels, const ZAMMathPoint2D& centre) : _Centre(centre) {
    _Rings.resize(static_cast<std::size_t>(pixels.FarthestFrom(centre)) + 2, Colour{});
    std::vector<double> weights(_Rings.size(), 0.0);
    pixels.ForEach([&](const ZAMMathPoint2D& place, std::uint32_t pixel) {
        const double distance = GetDistance(place, centre);
        const auto ring = static_cast<std::size_t>(distance);
        const double share = distance - static_cast<double>(ring);
        for (const auto& [number, weight] : {std::pair(ring, 1.0 - share), std::pair(ring + 1, share)}) {
            weights[number] += weight;
            for (std::size_t channel = 0; channel < kChannels; ++channel) {
                _Rings[number][channel] += weight * ChannelOf(pixel, channel);
            }
        }
        return true;
    });
    for (std::size_t ring = 0; ring < _Rings.size(); ++ring) {
        std::ranges::for_each(_Rings[ring], [&](double& sum) { sum /= std::max(weights[ring], 1e-9); });
    }
    FillGaps(weights);
}

/// Where the picture has no pixel of a ring the one before goes on, or the first that it has.
void ZAMPrintCairoRings::FillGaps(const std::vector<double>& weights) {
    const auto first = std::ranges::find_if(weights, [](double weight) { return weight > 0.0; }) - weights.begin();
    for (std::size_t ring = 0; ring < _Rings.size(); ++ring) {
        if (weights[ring] == 0.0) {
            _Rings[ring] = _Rings[std::max(ring, static_cast<std::size_t>(first) + 1) - 1];
        }
    }
}

ZAMPrintCairoRings::Colour ZAMPrintCairoRings::At(double distance) const {
    const auto ring = std::min(static_cast<std::size_t>(distance), _Rings.size() - 2);
    const double share = distance - static_cast<double>(ring);
    Colour colour{};
    for (std::size_t channel = 0; channel < kChannels; ++channel) {
        colour[channel] = _Rings[ring][channel] * (1.0 - share) + _Rings[ring + 1][channel] * share;
    }
    return colour;
}

/// How far the pixel that agrees least is off, in its worst channel; of those up to one that leaves no hope.
double ZAMPrintCairoRings::FindError(const Pixels& pixels) const {
    double worst = 0.0;
    pixels.ForEach([&](const ZAMMathPoint2D& place, std::uint32_t pixel) {
        const Colour colour = At(GetDistance(place, _Centre));
        for (std::size_t channel = 0; channel < kChannels; ++channel) {
            worst = std::max(worst, std::abs(colour[channel] - ChannelOf(pixel, channel)));
        }
        return worst <= kHopeless;
    });
    return worst;
}

/// How the centre would have to move to bring the pixels nearest to their rings, if these stayed as they are; nothing
/// where they say nothing of it.
std::optional<ZAMMathVector2D> ZAMPrintCairoRings::FindWay(const Pixels& pixels) const {
    Equations equations;
    pixels.ForEach([&](const ZAMMathPoint2D& place, std::uint32_t pixel) {
        const double x = place.x - _Centre.x;
        const double y = place.y - _Centre.y;
        const double distance = std::max(GetDistance(place, _Centre), 1e-3);
        const Colour outer = At(distance + 0.5);
        const Colour inner = At(std::max(distance - 0.5, 0.0));
        for (std::size_t channel = 0; channel < kChannels; ++channel) {
            const double slope = (outer[channel] - inner[channel]) / distance;
            const double off = (outer[channel] + inner[channel]) / 2.0 - ChannelOf(pixel, channel);
            equations.Add(slope * x, slope * y, off);
        }
        return true;
    });
    const auto way = equations.Solve();
    return way ? std::optional(ZAMMathVector2D{way->x, way->y}) : std::nullopt;
}

/// No ring has an edge to the next: what looks like that is a dot, or a shape of few pixels.
bool ZAMPrintCairoRings::IsSmooth() const {
    const auto isEdge = [](const Colour& one, const Colour& other) {
        return !std::ranges::equal(one, other, [](double a, double b) { return std::abs(a - b) <= kHopeless; });
    };
    return std::ranges::adjacent_find(_Rings, isEdge) == _Rings.end();
}

/// The rings differ by more than what a pixel of another picture could be off.
bool ZAMPrintCairoRings::IsSeen() const {
    for (std::size_t channel = 0; channel < kChannels; ++channel) {
        const auto valueOf = [channel](const Colour& ring) { return ring[channel]; };
        const auto [least, most] = std::ranges::minmax_element(_Rings, {}, valueOf);
        if (valueOf(*most) - valueOf(*least) >= kSmallestRange) {
            return true;
        }
    }
    return false;
}

/// From now on colours are not multiplied by their alpha; where nothing is seen of them they are as a neighbour's.
void ZAMPrintCairoRings::Straighten() {
    constexpr double kNothing = 0.5;
    const Colour* known = nullptr;
    const auto straighten = [&known](Colour& ring) {
        const double alpha = ring[3];
        if (alpha > kNothing) {
            std::for_each(ring.begin(), ring.begin() + 3,
                          [alpha](double& channel) { channel = std::min(channel * 255.0 / alpha, 255.0); });
            known = &ring;
        } else if (known != nullptr) {
            std::copy_n(known->begin(), 3, ring.begin());
        }
    };
    std::ranges::for_each(_Rings, straighten);
    const auto seen = std::ranges::find_if(_Rings, [](const Colour& ring) { return ring[3] > kNothing; });
    if (seen != _Rings.end()) {
        std::for_each(_Rings.begin(), seen, [&](Colour& ring) { std::copy_n(seen->begin(), 3, ring.begin()); });
    }
}

/// The last ring, and between it and the first those without which a ring would not be as it is.
void ZAMPrintCairoRings::ChooseStops(std::size_t first, std::size_t last) {
    double worst = kStopTolerance;
    std::size_t at = last;
    for (std::size_t ring = first + 1; ring < last; ++ring) {
        const double share = static_cast<double>(ring - first) / static_cast<double>(last - first);
        for (std::size_t channel = 0; channel < kChannels; ++channel) {
            const double between = _Rings[first][channel] * (1.0 - share) + _Rings[last][channel] * share;
            // What is hardly seen need not be right.
            const double seen = channel == 3 ? 1.0 : _Rings[ring][3] / 255.0;
            const double off = std::abs(between - _Rings[ring][channel]) * seen;
            if (off > worst) {
                worst = off;
                at = ring;
            }
        }
    }
    if (at != last) {
        ChooseStops(first, at);
        ChooseStops(at, last);
    } else {
        _Stops.push_back(last);
    }
}

ZAMPrintCairoPattern ZAMPrintCairoRings::MakeSource(const ZAMMathAffine2D& toDevice, double opacity) const {
    cairo_matrix_t matrix = ZAMPrintCairoMap::ToCairo(toDevice);
    if (cairo_matrix_invert(&matrix) != CAIRO_STATUS_SUCCESS) {
        return nullptr;
    }
    const auto last = static_cast<double>(_Rings.size() - 1);
    ZAMPrintCairoPattern source(cairo_pattern_create_radial(_Centre.x, _Centre.y, 0.0, _Centre.x, _Centre.y, last));
    for (const std::size_t stop : _Stops) {
        const Colour& colour = _Rings[stop];
        cairo_pattern_add_color_stop_rgba(source.get(), static_cast<double>(stop) / last, colour[2] / 255.0,
                                          colour[1] / 255.0, colour[0] / 255.0, opacity * colour[3] / 255.0);
    }
    cairo_pattern_set_extend(source.get(), CAIRO_EXTEND_PAD);
    cairo_pattern_set_matrix(source.get(), &matrix);
    return source;
}
