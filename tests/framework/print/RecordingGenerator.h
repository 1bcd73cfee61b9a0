// SPDX-License-Identifier: MIT
#pragma once

#include "framework/print/ZAMPrintGenerator.h"

#include <cmath>
#include <limits>
#include <sstream>
#include <stdexcept>
#include <string>

/// A generator that writes down what it is told, one line a call, in page coordinates.
class RecordingGenerator : public ZAMPrintGenerator {
public:
    int failingCall = 0; ///< the call, counted from 1 among those that give a result, that fails; 0 for none
    int failure = -1;    ///< what it gives then
    bool throwsAtMarks = false;
    double largestSide = std::numeric_limits<double>::infinity();
    int calls = 0;

    /// Everything so far, and forgets it.
    std::string Take() {
        std::string text = _Text.str();
        _Text.str("");
        return text;
    }

    double GetLargestPageSide() const override { return largestSide; }
    int BeginDocument(const ZAMPrintParameters& /*parameters*/) override { return Call("document\n"); }
    int BeginPage(double width, double height) override {
        return Call("page " + Number(width) + " x " + Number(height) + "\n");
    }
    int EndPage() override { return Call("end page\n"); }
    int EndDocument() override { return Call("end document\n"); }

    void PushClip(const ZAMMathBox2D& area, const ZAMMathAffine2D& toPage) override {
        _Text << "clip" << Point(toPage.Apply(ZAMMathPoint2D{area.xMin, area.yMin}))
              << Point(toPage.Apply(ZAMMathPoint2D{area.xMax, area.yMax})) << '\n';
    }
    void PopClip() override { _Text << "unclip\n"; }
    void AddLink(const ZAMMathBox2D& area, std::string_view address) override {
        _Text << "link " << address << Point({area.xMin, area.yMin}) << Point({area.xMax, area.yMax}) << '\n';
    }
    void AddInternalLink(const ZAMMathBox2D& area, std::string_view destination) override {
        AddLink(area, "#" + std::string(destination));
    }
    void AddDestination(std::string_view name, const ZAMMathPoint2D& place) override {
        _Text << "place " << name << Point(place) << '\n';
    }

    void DrawPath(const ZAMPrintPath& path, const ZAMMathAffine2D& toPage, const ZAMPrintFill* fill,
                  const ZAMPrintPen* pen) override {
        if (throwsAtMarks) {
            throw std::runtime_error("no marks here");
        }
        const ZAMMathPoint2D* point = path.GetPoints().data();
        for (const auto verb : path.GetVerbs()) {
            _Text << "MLCZ"[static_cast<int>(verb)];
            for (std::size_t i = 0; i < ZAMPrintPath::PointsOf(verb); ++i) {
                _Text << Point(toPage.Apply(*point++)).substr(i == 0 ? 1 : 0);
            }
            _Text << ' ';
        }
        AddPaint(fill, pen);
    }

    // The text and where its anchor point and the corners of its extents come to be.
    void DrawText(const ZAMTextLayout& layout, const ZAMMathAffine2D& toPage, const ZAMPrintFill* fill,
                  const ZAMPrintPen* pen) override {
        const ZAMMathBox2D& box = layout.GetExtents();
        _Text << '"' << layout.GetText() << "\" at" << Point(toPage.Apply(ZAMMathPoint2D{0, 0})) << " in"
              << Point(toPage.Apply(ZAMMathPoint2D{box.xMin, box.yMin}))
              << Point(toPage.Apply(ZAMMathPoint2D{box.xMax, box.yMax})) << ' ';
        AddPaint(fill, pen);
    }

    // Its pixels and where its lower left, lower right and upper left corners come to be.
    void DrawImage(const ZAMRef<ZAMPixelImage>& image, const ZAMMathAffine2D& toPage) override {
        _Text << "image " << image->GetWidth() << " x " << image->GetHeight();
        for (const ZAMMathPoint2D& corner : {ZAMMathPoint2D{0, 0}, ZAMMathPoint2D{1, 0}, ZAMMathPoint2D{0, 1}}) {
            _Text << Point(toPage.Apply(corner));
        }
        _Text << '\n';
    }

    std::string GetError() const override { return {}; }

private:
    void AddPaint(const ZAMPrintFill* fill, const ZAMPrintPen* pen) {
        if (fill != nullptr) {
            _Text << "fill " << Colour(fill->colour) << (fill->rule == ZAMPrtFillRule::EvenOdd ? " evenodd " : " ");
            if (const ZAMPrtFillPattern* pattern = fill->pattern) {
                _Text << "tile" << Point({pattern->size.x, pattern->size.y}) << " by"
                      << Point({pattern->step.x, pattern->step.y}) << " at" << Point(pattern->refPoint) << ' ';
            }
        }
        if (pen != nullptr) {
            _Text << "pen " << Colour(pen->colour) << ' ' << Number(pen->width) << ' ' << static_cast<int>(pen->cap)
                  << ' ' << static_cast<int>(pen->join);
            for (const float dash : pen->dashes) {
                _Text << ' ' << dash;
            }
        }
        _Text << '\n';
    }
    int Call(const std::string& text) {
        _Text << text;
        return ++calls == failingCall ? failure : 1;
    }
    static std::string Number(double value) {
        std::ostringstream text;
        text << (std::isfinite(value) ? std::round(value * 1e3) / 1e3 + 0.0 : value);
        return std::isnan(value) ? "nan" : text.str();
    }
    static std::string Point(const ZAMMathPoint2D& point) { return " " + Number(point.x) + "," + Number(point.y); }
    static std::string Colour(const ZAMPrintColour& colour) {
        std::ostringstream text;
        text << int{colour.red} << '/' << int{colour.green} << '/' << int{colour.blue} << '/' << int{colour.alpha};
        return text.str();
    }

    std::ostringstream _Text;
};
