// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGTransformParser.h"

#include "framework/base/ZAMNumberReading.h"
#include "framework/base/ZAMTextCompare.h"
#include "framework/mathematics/ZAMMathConstants.h"
#include "framework/model/ZAMPrtAllElements.h"
#include "framework/model/ZAMPrtTypeList.h"
#include "ZAMPrtInterpreterSVG/microsyntax/ZAMPrintSVGNumberList.h"

#include <array>
#include <cstddef>

namespace {

using TransformableElements =
    ZAMPrtTypeList<ZAMPrtBitmapImageElt, ZAMPrtCircleElt, ZAMPrtClosedFigureElt, ZAMPrtClosedFigureRegionElt,
                   ZAMPrtEllipseElt, ZAMPrtEllipticalArcElt, ZAMPrtGroupElt, ZAMPrtLineElt, ZAMPrtPolyCubicBezierElt,
                   ZAMPrtPolygonElt, ZAMPrtPolylineElt, ZAMPrtPolyQuadraticBezierElt, ZAMPrtRectangleElt,
                   ZAMPrtSymbolElt, ZAMPrtTextElt>;

// The numbers of an argument list: as many as any function uses, and how many there were.
struct Numbers {
    explicit Numbers(std::string_view arguments) {
        ZAMPrintSVGForEachNumber(arguments, [this](double value) {
            if (count < values.size()) {
                values.at(count) = value;
            }
            ++count;
        });
    }
    [[nodiscard]] double Or(std::size_t index, double missing) const {
        return index < count ? values.at(index) : missing;
    }

    std::array<double, 6> values{};
    std::size_t count = 0;
};

float Radians(double degrees) {
    return static_cast<float>(degrees * ZAMDegreeToRadian);
}

// The skews take no list: their whole argument is one number, 0 when it is none.
float SkewAngle(std::string_view arguments) {
    double degrees = 0.0;
    ZAMReadDouble(arguments, degrees);
    return Radians(degrees);
}

void AddMatrix(std::string_view arguments, ZAMPrtTransformAttributes& transform) {
    const Numbers n(arguments);
    transform.AddTranslation({n.Or(4, 0.0), n.Or(5, 0.0)});
    transform.AddMatrix({n.Or(0, 1.0), n.Or(2, 0.0), n.Or(1, 0.0), n.Or(3, 1.0)});
}

void AddTranslate(std::string_view arguments, ZAMPrtTransformAttributes& transform) {
    const Numbers n(arguments);
    transform.AddTranslation({n.Or(0, 0.0), n.Or(1, 0.0)});
}

void AddScale(std::string_view arguments, ZAMPrtTransformAttributes& transform) {
    const Numbers n(arguments);
    const double sx = n.Or(0, 1.0);
    transform.AddScaleX(sx);
    transform.AddScaleY(n.Or(1, sx));
}

void AddRotate(std::string_view arguments, ZAMPrtTransformAttributes& transform) {
    const Numbers n(arguments);
    if (n.count == 0) {
        return;
    }
    const bool aboutPoint = n.count > 2;
    if (aboutPoint) {
        transform.AddTranslation({n.values[1], n.values[2]});
    }
    transform.AddRotation(Radians(n.values[0]));
    if (aboutPoint) {
        transform.AddTranslation({-n.values[1], -n.values[2]});
    }
}

void AddSkewX(std::string_view arguments, ZAMPrtTransformAttributes& transform) {
    transform.AddSkewX(SkewAngle(arguments));
}

void AddSkewY(std::string_view arguments, ZAMPrtTransformAttributes& transform) {
    transform.AddSkewY(SkewAngle(arguments));
}

struct Function {
    std::string_view name;
    void (*add)(std::string_view arguments, ZAMPrtTransformAttributes& transform);
};

// In the order in which names are tried.
constexpr Function kFunctions[] = {
    {"matrix", AddMatrix}, {"translate", AddTranslate}, {"scale", AddScale},
    {"rotate", AddRotate}, {"skewX", AddSkewX},         {"skewY", AddSkewY},
};

// Items are set apart by the keywords, in exactly this spelling, and by semicolons.
std::size_t FindItemStart(std::string_view text, std::size_t from) {
    for (std::size_t i = from; i < text.size(); ++i) {
        if (text[i] == ';') {
            return i;
        }
        for (const Function& function : kFunctions) {
            if (text[i] == function.name.front() && text.substr(i).starts_with(function.name)) {
                return i;
            }
        }
    }
    return std::string_view::npos;
}

// Eats one item: what stands before the first keyword is thrown away, a text without any is one item.
std::string_view TakeItem(std::string_view& text) {
    const std::size_t start = FindItemStart(text, 0);
    if (start == std::string_view::npos) {
        const std::string_view item = text;
        text = {};
        return item;
    }
    const bool semicolon = text[start] == ';';
    text.remove_prefix(semicolon ? start + 1 : start);
    const std::size_t end = FindItemStart(text, semicolon ? 0 : 1);
    const std::string_view item = text.substr(0, end);
    text.remove_prefix(item.size());
    return item;
}

// Names match regardless of letter case, but only behind a keyword in its own spelling, a semicolon, or alone.
void AddItem(std::string_view item, ZAMPrtTransformAttributes& transform) {
    const std::size_t open = item.find('(');
    const std::size_t close = open == std::string_view::npos ? open : item.find(')', open);
    if (close == std::string_view::npos || close == open + 1) {
        return;
    }
    const std::string_view name = item.substr(0, open);
    for (const Function& function : kFunctions) {
        if (ZAMTextMatches(name, function.name)) {
            function.add(item.substr(open + 1, close - open - 1), transform);
            return;
        }
    }
}

} // namespace

int ZAMPrintSVGTransformParser::SetImageSize(double width, double height) {
    _ImageWidth = width;
    _ImageHeight = height;
    return 1;
}

void ZAMPrintSVGTransformParser::AddFlip(ZAMPrtTransformAttributes& transform) const {
    if (_FlipY) {
        transform.AddTranslation({0.0, _ImageHeight});
        transform.AddScaleY(-1.0);
    }
}

int ZAMPrintSVGTransformParser::ParseTransformString(std::string_view text,
                                                     ZAMPrtGraphicPrimitiveElt* primitive) const {
    if (text.empty() || primitive == nullptr) {
        return -1;
    }
    if (!TransformableElements::Holds(primitive)) {
        return 1;
    }
    ZAMPrtTransformAttributes transform = primitive->GetTransformAttributes();
    AddFlip(transform);
    while (!text.empty()) {
        AddItem(TakeItem(text), transform);
    }
    AddFlip(transform);
    primitive->SetTransformAttributes(transform);
    return 1;
}
