// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGClipShape.h"

#include "framework/base/ZAMNumberReading.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGNumberText.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGVocabulary.h"

#include <array>
#include <cmath>
#include <optional>

namespace {

// Uses of uses in clipping paths; a circle of them ends here.
constexpr int kMaximumDepth = 8;

std::string_view LinkOf(const ZAMLightXmlElementItf& element) {
    const std::string_view link = element.GetAttribute("xlink:href");
    return link.empty() ? element.GetAttribute("href") : link;
}

// Moves and scales; turned by nothing, as far as can be told without calculating.
bool StaysUpright(std::string_view transform) {
    if (transform.find("rotate") != std::string_view::npos || transform.find("skew") != std::string_view::npos) {
        return false;
    }
    ZAMPrintSVGNumberText text(transform, ZAMPrintSVGNumberText::Kind::Plain);
    std::size_t inMatrix = 6;
    for (auto token = text.Next(); token.kind != ZAMPrintSVGNumberText::Token::End; token = text.Next()) {
        if (token.kind == ZAMPrintSVGNumberText::Token::Letter) {
            inMatrix = token.letter == 'm' ? 0 : inMatrix;
        } else if (inMatrix < 6) {
            const bool isShear = inMatrix == 1 || inMatrix == 2;
            if (isShear && token.value != 0.0) {
                return false;
            }
            ++inMatrix;
        }
    }
    return true;
}

bool HasRadius(const ZAMLightXmlElementItf& rect, const char* name) {
    double radius = 0.0;
    return ZAMReadDouble(rect.GetAttribute(name), radius) == 1 && radius != 0.0;
}

struct Point {
    double x = 0.0;
    double y = 0.0;
};

// The corners of one figure of straight lines; nothing for any other path, or one with more than a rectangle needs.
class Corners {
public:
    bool Add(Point point) {
        if (_Count == _Points.size()) {
            return false;
        }
        _Points.at(_Count++) = point;
        return true;
    }
    // Each side runs along one axis, the two in turn.
    [[nodiscard]] bool AreOfRectangle() const {
        const bool isClosed = _Count == 5 && IsSame(_Points[0].x, _Points[4].x) && IsSame(_Points[0].y, _Points[4].y);
        if (_Count != 4 && !isClosed) {
            return false;
        }
        for (std::size_t i = 0; i < 4; ++i) {
            const Point& from = _Points.at(i);
            const Point& to = _Points.at((i + 1) % 4);
            const bool isAcross = IsSame(from.y, to.y);
            if (isAcross == IsSame(from.x, to.x) || isAcross == IsSame(_Points.at((i + 2) % 4).y, to.y)) {
                return false;
            }
        }
        return true;
    }

private:
    static bool IsSame(double left, double right) { return std::abs(left - right) <= 1e-3; }

    std::array<Point, 5> _Points{};
    std::size_t _Count = 0;
};

bool ArePointsOfRectangle(std::string_view points) {
    ZAMPrintSVGNumberText text(points, ZAMPrintSVGNumberText::Kind::Plain);
    Corners corners;
    for (auto x = text.Next(); x.kind == ZAMPrintSVGNumberText::Token::Number; x = text.Next()) {
        const auto y = text.Next();
        if (!corners.Add({x.value, y.value})) {
            return false;
        }
    }
    return corners.AreOfRectangle();
}

// Follows the pen of a path of lines. False when the path has anything else.
class LinePen {
public:
    explicit LinePen(std::string_view data) : _Text(data, ZAMPrintSVGNumberText::Kind::Path) {}

    bool DrawAll() {
        for (auto token = _Text.Next(); token.kind != ZAMPrintSVGNumberText::Token::End; token = _Text.Next()) {
            if (!Take(token)) {
                return false;
            }
        }
        return _Corners.AreOfRectangle();
    }

private:
    bool Take(const ZAMPrintSVGNumberText::Token& token) {
        if (token.kind == ZAMPrintSVGNumberText::Token::Letter) {
            const bool isSecondFigure = _Command != '\0' && (token.letter == 'M' || token.letter == 'm');
            _Command = token.letter;
            return !isSecondFigure && std::string_view("MmLlHhVvZz").find(_Command) != std::string_view::npos;
        }
        const bool isRelative = _Command >= 'a';
        Point to = _At;
        if (_Command == 'H' || _Command == 'h') {
            to.x = token.value + (isRelative ? _At.x : 0.0);
        } else if (_Command == 'V' || _Command == 'v') {
            to.y = token.value + (isRelative ? _At.y : 0.0);
        } else {
            to.x = token.value + (isRelative ? _At.x : 0.0);
            to.y = _Text.Next().value + (isRelative ? _At.y : 0.0);
        }
        _At = to;
        return _Corners.Add(to);
    }

    ZAMPrintSVGNumberText _Text;
    Corners _Corners;
    Point _At;
    char _Command = '\0';
};

} // namespace

bool ZAMPrintSVGClipShape::IsRectangle(const ZAMLightXmlElementItf& element, int depth) const {
    const std::string_view name = ZAMPrintSVGVocabulary::NameOf(element);
    if (depth > kMaximumDepth || !StaysUpright(element.GetAttribute("transform"))) {
        return false;
    }
    if (name == "rect") {
        return !HasRadius(element, "rx") && !HasRadius(element, "ry");
    }
    if (name == "path") {
        return LinePen(element.GetAttribute("d")).DrawAll();
    }
    if (name == "polygon" || name == "polyline") {
        return ArePointsOfRectangle(element.GetAttribute("points"));
    }
    if (name == "use") {
        const std::string_view link = LinkOf(element);
        const auto* const target = link.starts_with('#') ? _Ids.Find(link.substr(1)) : nullptr;
        return target != nullptr && IsRectangle(target->element, depth + 1);
    }
    return (name == "clipPath" || name == "g") && IsOnlyChildRectangle(element, depth + 1);
}

// A path without anything to show hides all, which can be done.
bool ZAMPrintSVGClipShape::IsOnlyChildRectangle(const ZAMLightXmlElementItf& element, int depth) const {
    std::optional<bool> isRectangle;
    for (ZAMLightXmlPosition position = element.GetFirstChildPosition(); position != 0;) {
        const ZAMLightXmlElement child = element.GetNextChild(position);
        const auto* const known = ZAMPrintSVGVocabulary::FindElement(ZAMPrintSVGVocabulary::NameOf(child));
        if (known == nullptr || known->role == ZAMPrintSVGVocabulary::Role::Aside) {
            continue;
        }
        if (isRectangle) {
            return false;
        }
        isRectangle = IsRectangle(child, depth);
    }
    return isRectangle.value_or(true);
}
