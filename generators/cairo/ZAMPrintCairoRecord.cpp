// SPDX-License-Identifier: MIT
#include "generators/cairo/ZAMPrintCairoRecord.h"

void ZAMPrintCairoRecord::Paint(const ZAMPrintColour& colour) {
    Put(Mark::Paint);
    Put(colour);
}

void ZAMPrintCairoRecord::PushClip(const ZAMMathBox2D& area, const ZAMMathAffine2D& toPage) {
    Put(Mark::PushClip);
    Put(area);
    Put(toPage);
}

void ZAMPrintCairoRecord::PopClip() {
    Put(Mark::PopClip);
}

void ZAMPrintCairoRecord::DrawPath(const ZAMPrintPath& path, const ZAMMathAffine2D& toPage, const ZAMPrintFill* fill,
                                   const ZAMPrintPen* pen) {
    Header header;
    header.toPage = toPage;
    header.fills = fill != nullptr;
    header.strokes = pen != nullptr;
    header.fill = header.fills ? *fill : ZAMPrintFill();
    header.pen = header.strokes ? *pen : ZAMPrintPen();
    const std::span<const float> dashes = header.pen.dashes;
    header.dashes = dashes.size();
    header.verbs = path.GetVerbs().size();
    header.points = path.GetPoints().size();
    Put(Mark::Path);
    Put(header);
    Put(dashes);
    Put(path.GetVerbs());
    Put(path.GetPoints());
}

void ZAMPrintCairoRecord::Build(std::span<const ZAMPrintPath::Verb> verbs, std::span<const ZAMMathPoint2D> points,
                                ZAMPrintPath& path) {
    path.Clear();
    const ZAMMathPoint2D* p = points.data();
    for (const ZAMPrintPath::Verb verb : verbs) {
        switch (verb) {
        case ZAMPrintPath::Verb::MoveTo:
            path.MoveTo(p[0]);
            break;
        case ZAMPrintPath::Verb::LineTo:
            path.LineTo(p[0]);
            break;
        case ZAMPrintPath::Verb::CubicTo:
            path.CubicTo(p[0], p[1], p[2]);
            break;
        case ZAMPrintPath::Verb::ClosePath:
            path.ClosePath();
            break;
        }
        p += ZAMPrintPath::PointsOf(verb);
    }
}
