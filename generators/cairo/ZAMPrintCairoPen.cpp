// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoPen.h"

#include "generators/cairo/ZAMPrintCairoColour.h"
#include "generators/cairo/ZAMPrintCairoLimits.h"
#include "generators/cairo/ZAMPrintCairoStretch.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace {

cairo_line_cap_t ToCap(ZAMPrintLineAttribute cap) {
    switch (cap) {
    case ZAMPrintLineAttribute::CapSquare:
        return CAIRO_LINE_CAP_SQUARE;
    case ZAMPrintLineAttribute::CapRound:
        return CAIRO_LINE_CAP_ROUND;
    default:
        return CAIRO_LINE_CAP_BUTT;
    }
}

cairo_line_join_t ToJoin(ZAMPrintLineAttribute join) {
    switch (join) {
    case ZAMPrintLineAttribute::JoinRound:
        return CAIRO_LINE_JOIN_ROUND;
    case ZAMPrintLineAttribute::JoinBevel:
        return CAIRO_LINE_JOIN_BEVEL;
    default:
        return CAIRO_LINE_JOIN_MITER;
    }
}

ZAMMath2x2Matrix Divide(const ZAMMath2x2Matrix& m, double divisor) {
    return {m.a / divisor, m.b / divisor, m.c / divisor, m.d / divisor};
}

ZAMMath2x2Matrix Invert(const ZAMMath2x2Matrix& m) {
    return Divide({m.d, -m.b, -m.c, m.a}, m.Determinant());
}

} // namespace

ZAMPrintCairoPen::ZAMPrintCairoPen(const ZAMPrintPen& pen, const ZAMMath2x2Matrix& toDevice)
    : _Colour(pen.colour), _Cap(ToCap(pen.cap)), _Join(ToJoin(pen.join)) {
    const ZAMPrintCairoStretch stretch(toDevice);
    const double flatness = stretch.shortest / stretch.longest;
    const double width = pen.width * stretch.longest;
    // Written so that NaN fails as well.
    if (!(flatness >= ZAMPrintCairoLimits::kFlattestPen && width > 0.0 && std::isfinite(width))) {
        return;
    }
    _Width = std::min(width, ZAMPrintCairoLimits::kWidestPen);
    // A round pen stays round when it is turned or mirrored: without a matrix the output is smaller.
    if (flatness < 1.0 - 1e-9) {
        _ToDevice = Divide(toDevice, stretch.longest);
        _FromDevice = Invert(_ToDevice);
        _IsRound = false;
    }
    ReadDashes(pen.dashes, stretch.longest);
}

double ZAMPrintCairoPen::GetReach() const {
    return _Width / 2.0 * ZAMPrintPen::kMiterLimit;
}

double ZAMPrintCairoPen::CountDashSteps(double length) const {
    return IsDashed() ? length / _Period * static_cast<double>(_Dashes.size()) : 0.0;
}

double ZAMPrintCairoPen::Measure(const ZAMMathVector2D& offset) const {
    return std::hypot(_FromDevice.a * offset.x + _FromDevice.b * offset.y,
                      _FromDevice.c * offset.x + _FromDevice.d * offset.y);
}

double ZAMPrintCairoPen::Measure(const ZAMPrintPath& path) const {
    double length = 0.0;
    ZAMMathPoint2D previous;
    ZAMMathPoint2D start;
    const auto measureTo = [&](const ZAMMathPoint2D& next) {
        length += Measure(ZAMMathVector2D{next.x - previous.x, next.y - previous.y});
        previous = next;
    };
    const ZAMMathPoint2D* point = path.GetPoints().data();
    for (const ZAMPrintPath::Verb verb : path.GetVerbs()) {
        if (verb == ZAMPrintPath::Verb::MoveTo) {
            start = previous = *point++;
        } else if (verb == ZAMPrintPath::Verb::ClosePath) {
            measureTo(start);
        } else {
            for (std::size_t count = ZAMPrintPath::PointsOf(verb); count > 0; --count) {
                measureTo(*point++);
            }
        }
    }
    return length;
}

bool ZAMPrintCairoPen::HasManyDashes(const ZAMPrintPath& path) const {
    // Written so that infinitely many and NaN are too many as well.
    return IsDashed() && !(CountDashSteps(Measure(path)) <= ZAMPrintCairoLimits::kManyDashSteps);
}

void ZAMPrintCairoPen::Stroke(cairo_t* context, double walked) const {
    cairo_matrix_t matrix;
    cairo_matrix_init(&matrix, _ToDevice.a, _ToDevice.c, _ToDevice.b, _ToDevice.d, 0.0, 0.0);
    cairo_set_matrix(context, &matrix);
    cairo_set_line_width(context, _Width);
    cairo_set_line_cap(context, _Cap);
    cairo_set_line_join(context, _Join);
    cairo_set_miter_limit(context, ZAMPrintPen::kMiterLimit);
    const double phase = IsDashed() && std::isfinite(walked) ? std::fmod(_DashOffset + walked, _Period) : 0.0;
    cairo_set_dash(context, _Dashes.data(), static_cast<int>(_Dashes.size()), phase);
    ZAMPrintCairoColour::SetSource(context, _Colour);
    cairo_stroke(context);
    cairo_identity_matrix(context);
}

void ZAMPrintCairoPen::ReadDashes(std::span<const float> dashes, double scale) {
    const bool isSound = dashes.size() <= ZAMLimits::kDashes &&
                         std::all_of(dashes.begin(), dashes.end(), [](float dash) { return dash >= 0.0F; });
    if (!isSound) {
        return;
    }
    for (const float dash : dashes) {
        _Dashes.push_back(std::min(static_cast<double>(dash) * scale, ZAMPrintCairoLimits::kLongestDash));
    }
    // An odd list swaps dashes and gaps each time round.
    _Period = std::accumulate(_Dashes.begin(), _Dashes.end(), 0.0) * (dashes.size() % 2 == 0 ? 1.0 : 2.0);
    if (_Period < ZAMPrintCairoLimits::kShortestPeriod) {
        MakeSolid();
    } else if (_Cap == CAIRO_LINE_CAP_BUTT) {
        LeaveOutDots();
    }
}

/// Without ends a dash of no length is nothing, but some readers of PDF and PostScript draw a hair across the line. The
/// gaps on its two sides become one.
void ZAMPrintCairoPen::LeaveOutDots() {
    constexpr double kShortest = 1e-6; // what files are written with
    const std::size_t count = _Dashes.size();
    const auto isDot = [&](std::size_t i) { return _Dashes[i % count] < kShortest; };
    const std::size_t steps = count % 2 == 0 ? count : 2 * count;
    std::size_t first = 0;
    bool hasDots = false;
    for (std::size_t i = steps; i > 0; i -= 2) {
        hasDots = hasDots || isDot(i - 2);
        first = isDot(i - 2) ? first : i - 2;
    }
    if (!hasDots) {
        return;
    }
    if (isDot(first)) { // all of them
        _Width = 0.0;
        return;
    }
    std::vector<double> dashes;
    for (std::size_t i = first; i < first + steps; i += 2) {
        const double gap = _Dashes[(i + 1) % count];
        if (isDot(i)) {
            dashes.back() += _Dashes[i % count] + gap;
        } else {
            dashes.insert(dashes.end(), {_Dashes[i % count], gap});
        }
    }
    for (std::size_t i = 0; i < first; ++i) {
        _DashOffset -= _Dashes[i % count];
    }
    _DashOffset = first == 0 ? 0.0 : _DashOffset + _Period;
    _Dashes = std::move(dashes);
}
