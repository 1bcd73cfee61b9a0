// SPDX-License-Identifier: MIT
#include "prepress/geometry/ZAMPrepressTransformText.h"

#include "prepress/geometry/ZAMPrepressNumberText.h"
#include "prepress/geometry/ZAMPrepressTransform.h"

#include <initializer_list>
#include <utility>

namespace {

std::string FunctionText(std::string text, std::initializer_list<double> numbers) {
    char separator = '(';
    for (const double number : numbers) {
        text += separator;
        ZAMPrepressAppendNumber(text, number);
        separator = ' ';
    }
    return text += ')';
}

} // namespace

std::string ZAMPrepressTransformText(const ZAMMathAffine2D& map) {
    if (map == ZAMMathAffine2D{1.0, 0.0, 0.0, 1.0, map.e, map.f}) {
        return FunctionText("translate", {map.e, map.f});
    }
    return FunctionText("matrix", {map.a, map.b, map.c, map.d, map.e, map.f});
}

void ZAMPrepressAddTransform(ZAMPrepressElement& element, const ZAMMathAffine2D& map, ZAMPrepressTree& tree) {
    if (map == ZAMMathAffine2D()) {
        return;
    }
    std::string text(element.Get("transform"));
    if (text.empty() || !ZAMPrepressReadTransform(text)) {
        text = ZAMPrepressTransformText(map);
    } else {
        text.append(" ").append(ZAMPrepressTransformText(map));
    }
    element.Set("transform", tree.Keep(std::move(text)));
}
