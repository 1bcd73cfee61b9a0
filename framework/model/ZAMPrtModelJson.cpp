// SPDX-License-Identifier: MIT
#include "framework/model/ZAMPrtModelJson.h"

#include "framework/base/ZAMJsonWriter.h"
#include "framework/model/ZAMPrtAllElements.h"
#include "framework/model/ZAMPrtTypeList.h"
#include "framework/visualisation/ZAMFont.h"

#include <span>
#include <type_traits>

namespace {

using Layout = ZAMJsonWriter::Layout;

void WriteText(ZAMJsonWriter& json, std::string_view key, std::string_view text) {
    if (!text.empty()) {
        json.Member(key, text);
    }
}

void WriteHead(ZAMJsonWriter& json, const ZAMPrtGraphicPrimitiveElt& element) {
    json.Member("class", element.IsA());
    WriteText(json, "id", element.GetID());
    WriteText(json, "title", element.GetTitle());
    WriteText(json, "description", element.GetDescription());
}

void WritePoint(ZAMJsonWriter& json, std::string_view key, const ZAMMathPoint2D& point) {
    json.Member(key, {point.x, point.y});
}

void WritePoints(ZAMJsonWriter& json, std::string_view key, std::span<const ZAMMathPoint2D> points) {
    json.Key(key);
    json.BeginArray();
    for (const ZAMMathPoint2D& point : points) {
        json.Numbers({point.x, point.y});
    }
    json.EndArray();
}

// The geometry of each class. Those that are not listed have none.
void WriteGeometry(ZAMJsonWriter& /*json*/, const ZAMPrtGraphicPrimitiveElt& /*element*/) {}

void WriteGeometry(ZAMJsonWriter& json, const ZAMPrtGroupElt& group) {
    if (!group.GetGroupAttributes().HasLinkURI()) {
        return;
    }
    const ZAMPrintLinkURI link = group.GetGroupAttributes().GetLinkURI();
    json.Key("link");
    json.BeginObject();
    json.Member("elementId", link.GetElementId().View());
    json.Member("baseURL", link.GetBaseURL().View());
    json.Member("show", link.GetLinkShow());
    json.EndObject();
}

void WriteGeometry(ZAMJsonWriter& json, const ZAMPrtRectangleElt& rectangle) {
    const ZAMMathPoint2D corners[] = {rectangle.GetFirstCorner(), rectangle.GetOppositeCorner()};
    WritePoints(json, "corners", corners);
}

void WriteGeometry(ZAMJsonWriter& json, const ZAMPrtCircleElt& circle) {
    WritePoint(json, "center", circle.GetCenter());
    json.Member("radius", circle.GetRadius());
}

void WriteGeometry(ZAMJsonWriter& json, const ZAMPrtEllipseElt& ellipse) {
    WritePoint(json, "center", ellipse.GetCenter());
    json.Member("xRadius", ellipse.GetXRadius());
    json.Member("yRadius", ellipse.GetYRadius());
}

void WriteGeometry(ZAMJsonWriter& json, const ZAMPrtLineElt& line) {
    WritePoint(json, "start", line.GetStartPoint());
    WritePoint(json, "end", line.GetEndPoint());
}

template <class Base> void WriteGeometry(ZAMJsonWriter& json, const ZAMPrtWithPoints<Base>& element) {
    WritePoints(json, "points", element.GetPoints());
}

void WriteGeometry(ZAMJsonWriter& json, const ZAMPrtEllipticalArcElt& element) {
    const ZAMMathEllipticalArc& arc = element.GetArc();
    WritePoint(json, "center", arc.center);
    json.Member("xRadius", arc.xRadius);
    json.Member("yRadius", arc.yRadius);
    json.Member("rotation", arc.rotation);
    json.Member("startAngle", arc.startAngle);
    json.Member("sweepAngle", arc.sweepAngle);
}

void WriteGeometry(ZAMJsonWriter& json, const ZAMPrtTextElt& text) {
    WritePoint(json, "position", text.GetPosition());
    WriteText(json, "text", text.GetText());
    if (const ZAMPrtTextElt::ViewBox* box = text.GetViewBox()) {
        json.Member("viewBox", {(*box)[0], (*box)[1], (*box)[2], (*box)[3]});
    }
}

void WriteFrame(ZAMJsonWriter& json, const ZAMMathPoint2D& origin, const ZAMMathVector2D& size) {
    WritePoint(json, "origin", origin);
    json.Member("size", {size.x, size.y});
}

template <class Base> void WriteGeometry(ZAMJsonWriter& json, const ZAMPrtWithFrame<Base>& element) {
    WriteFrame(json, element.GetOrigin(), element.GetSize());
}

void WritePixels(ZAMJsonWriter& json, const ZAMPixelImage* image) {
    if (image == nullptr) {
        json.Key("pixels");
        json.Null();
    } else {
        json.Member("pixels", {static_cast<double>(image->GetWidth()), static_cast<double>(image->GetHeight())});
    }
}

void WriteGeometry(ZAMJsonWriter& json, const ZAMPrtBitmapImageElt& bitmap) {
    WriteFrame(json, bitmap.GetOrigin(), bitmap.GetSize());
    WritePixels(json, bitmap.GetPixelImage());
}

void WriteStroke(ZAMJsonWriter& json, const ZAMPrtStrokeAttributes& stroke) {
    json.Key("stroke");
    json.BeginObject();
    json.Key("colour");
    if (stroke.GetStrokeColourIndex() == kZAMPrtNoColour) {
        json.Null();
    } else {
        json.Integer(stroke.GetStrokeColourIndex());
    }
    json.Member("transparency", stroke.GetStrokeColourTransparency());
    json.Member("type", stroke.GetStrokeType());
    json.Member("width", stroke.GetStrokeWidth());
    json.Member("style", stroke.GetStrokeStyle());
    json.Member("cap", stroke.GetStrokeCap());
    json.Member("join", stroke.GetStrokeJoin());
    const auto dashes = stroke.GetStrokeTypePattern();
    if (!dashes.empty()) {
        json.Key("dashes");
        json.BeginArray();
        for (const float dash : dashes) {
            json.Number(dash);
        }
        json.EndArray();
    }
    json.EndObject();
}

void WriteFill(ZAMJsonWriter& json, const ZAMPrtFillAttributes& fill) {
    json.Key("fill");
    json.BeginObject();
    json.Member("colour", fill.GetFillColourIndex());
    json.Member("transparency", fill.GetFillColourTransparency());
    json.Member("rule", fill.GetFillRule());
    json.Member("style", fill.GetFillStyle());
    if (const ZAMPrtFillPattern* pattern = fill.GetPattern()) {
        json.Key("pattern");
        json.BeginObject();
        WritePixels(json, pattern->image.Get());
        json.Member("size", {pattern->size.x, pattern->size.y});
        json.Member("step", {pattern->step.x, pattern->step.y});
        WritePoint(json, "refPoint", pattern->refPoint);
        json.EndObject();
    }
    json.EndObject();
}

void WritePaint(ZAMJsonWriter& /*json*/, const ZAMPrtGraphicPrimitiveElt& /*element*/) {}

void WritePaint(ZAMJsonWriter& json, const ZAMPrtStrokedElt& element) {
    WriteStroke(json, element.GetStrokeAttributes());
}

void WritePaint(ZAMJsonWriter& json, const ZAMPrtPaintedElt& element) {
    json.Member("drawStyle", element.GetDrawStyle());
    WriteStroke(json, element.GetStrokeAttributes());
    WriteFill(json, element.GetFillAttributes());
}

void WritePaint(ZAMJsonWriter& json, const ZAMPrtTextElt& text) {
    WritePaint(json, static_cast<const ZAMPrtPaintedElt&>(text));
    const ZAMPrtTextAttributes& attributes = text.GetTextAttributes();
    json.Key("textAttributes");
    json.BeginObject();
    json.Key("font");
    if (attributes.GetFont() == nullptr) {
        json.Null();
    } else {
        json.String(attributes.GetFont()->GetName());
    }
    json.Member("weight", attributes.GetWeight());
    json.Member("height", attributes.GetHeight());
    json.Member("anchor", attributes.GetAnchor());
    json.Member("slant", attributes.GetSlant());
    json.Member("direction", attributes.GetDirection());
    json.Member("extraSpacing", attributes.GetExtraSpacing());
    json.Member("expansion", attributes.GetExpansion());
    json.Member("writingMode", attributes.GetWritingMode());
    json.EndObject();
}

void WriteElement(ZAMJsonWriter& json, const ZAMPrtGraphicPrimitiveElt& element);

void WriteChildren(ZAMJsonWriter& json, const ZAMPrtGraphicPrimitiveElt& element) {
    json.Key("children");
    json.BeginArray(Layout::Lines);
    for (const auto& child : element.GetChildren()) {
        WriteElement(json, *child);
    }
    json.EndArray();
}

using WrittenElements =
    ZAMPrtTypeList<ZAMPrtGroupElt, ZAMPrtRectangleElt, ZAMPrtCircleElt, ZAMPrtEllipseElt, ZAMPrtLineElt,
                   ZAMPrtPolylineElt, ZAMPrtPolygonElt, ZAMPrtPolyCubicBezierElt, ZAMPrtPolyQuadraticBezierElt,
                   ZAMPrtEllipticalArcElt, ZAMPrtClosedFigureElt, ZAMPrtClosedFigureRegionElt, ZAMPrtTextElt,
                   ZAMPrtBitmapImageElt, ZAMPrtSymbolElt, ZAMPrtPatternElt>;

void WriteElement(ZAMJsonWriter& json, const ZAMPrtGraphicPrimitiveElt& element) {
    json.BeginObject();
    WriteHead(json, element);
    if (!element.GetTransformAttributes().IsIdentity()) {
        const ZAMMathAffine2D& m = element.GetTransformAttributes().GetMatrix();
        json.Member("transform", {m.a, m.b, m.c, m.d, m.e, m.f});
    }
    const ZAMPrtGraphicPrimitiveElt* const pointer = &element;
    WrittenElements::Visit(pointer, [&json](const auto& typed) {
        WriteGeometry(json, typed);
        WritePaint(json, typed);
        if constexpr (requires(std::remove_cvref_t<decltype(typed)> & container) { container.AddChild(nullptr); }) {
            WriteChildren(json, typed);
        }
    });
    json.EndObject();
}

void WriteColours(ZAMJsonWriter& json, const ZAMPrtColourTable* table) {
    json.Key("colours");
    json.BeginArray();
    if (table != nullptr) {
        for (const ZAMPrtColourTable::Colour& colour : table->GetColours()) {
            json.Numbers(
                {static_cast<double>(colour.red), static_cast<double>(colour.green), static_cast<double>(colour.blue)});
        }
    }
    json.EndArray();
}

void WriteImage(ZAMJsonWriter& json, const ZAMPrtImageElt& image) {
    json.BeginObject();
    WriteHead(json, image);
    WriteFrame(json, image.GetOrigin(), image.GetSize());
    const ZAMMath2x2Matrix& m = image.GetMatrix();
    json.Member("matrix", {m.a, m.b, m.c, m.d});
    WriteColours(json, image.GetColourTable());
    WriteChildren(json, image);
    json.EndObject();
}

} // namespace

void ZAMPrtWriteModelAsJson(const ZAMPrtModel& model, std::ostream& out) {
    ZAMJsonWriter json(out);
    json.BeginObject();
    json.Key("images");
    json.BeginArray(Layout::Lines);
    for (const auto& image : model.GetImages()) {
        WriteImage(json, *image);
    }
    json.EndArray();
    json.EndObject();
}
