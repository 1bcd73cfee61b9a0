// SPDX-License-Identifier: MIT
#include "prepress/text/ZAMPrepressTextMeasure.h"

#include "framework/visualisation/ZAMTextLayout.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr int kTopToBottom = 2;

struct BoxSink {
    ZAMMathBox2D box;
    void MoveTo(const ZAMMathPoint2D& point) { box.Add(point); }
    void LineTo(const ZAMMathPoint2D& point) { box.Add(point); }
    void CubicTo(const ZAMMathPoint2D& /*control1*/, const ZAMMathPoint2D& /*control2*/, const ZAMMathPoint2D& point) {
        box.Add(point);
    }
    void ClosePath() {}
};

bool IsPlain(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

} // namespace

// One side of the box is the anchor, the other one where the pen stands.
double ZAMPrepressText::GetAdvance(std::string_view text, const ZAMTextStyle& style) {
    ZAMTextStyle upright = style;
    upright.writingMode = style.writingMode == kTopToBottom ? kTopToBottom : 0;
    const ZAMTextLayout layout(text, upright);
    if (layout.IsEmpty()) {
        return 0.0;
    }
    const ZAMMathBox2D& box = layout.GetExtents();
    return upright.writingMode == kTopToBottom ? -(box.yMin + box.yMax) : box.xMin + box.xMax;
}

ZAMPrepressFontMetrics ZAMPrepressText::Measure(const ZAMTextStyle& style) {
    ZAMTextStyle horizontal = style;
    horizontal.writingMode = 0;
    horizontal.height = 1.0;
    const ZAMTextLayout layout("x", horizontal);
    if (layout.IsEmpty()) {
        return {};
    }
    BoxSink sink;
    for (const ZAMTextRun& run : layout.GetRuns()) {
        layout.TraceOutlines(run, sink);
    }
    const double xHeight = sink.box.IsEmpty() ? layout.GetExtents().yMax / 2.0 : sink.box.yMax;
    return {layout.GetExtents().yMax, -layout.GetExtents().yMin, xHeight};
}

// Without ligatures, which letters with places of their own do not form.
std::vector<std::size_t> ZAMPrepressText::GetClusters(std::string_view text, const ZAMPrepressTextSetting& setting) {
    std::vector<std::size_t> clusters;
    if (IsPlain(text)) {
        clusters.assign(text.size(), 1);
        return clusters;
    }
    constexpr double kNoLigatures = 1e-9;
    ZAMTextStyle spaced = setting.GetStyle();
    spaced.writingMode = 0;
    spaced.extraSpacing = kNoLigatures;
    const ZAMTextLayout layout(text, spaced);
    std::vector<const ZAMTextRun*> runs;
    for (const ZAMTextRun& run : layout.GetRuns()) {
        runs.push_back(&run);
    }
    std::ranges::sort(runs, {}, &ZAMTextRun::textStart);
    for (const ZAMTextRun* run : runs) {
        for (const ZAMTextCluster& cluster : layout.GetClusters(*run)) {
            clusters.push_back(cluster.bytes);
        }
    }
    const bool isWhole = std::accumulate(clusters.begin(), clusters.end(), std::size_t{0}) == text.size();
    return isWhole ? clusters : std::vector<std::size_t>{text.size()};
}
