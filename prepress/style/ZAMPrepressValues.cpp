// SPDX-License-Identifier: MIT
#include "prepress/style/ZAMPrepressValues.h"

#include "prepress/style/ZAMPrepressPaint.h"

#include <algorithm>
#include <vector>

namespace {

using Result = ZAMPrepressValues::Result;
using Bases = ZAMPrepressValues::Bases;
using Type = ZAMPrepressCssTokenType;

std::optional<double> ReadLength(std::string_view text, const Bases& bases) {
    return ZAMPrepressReadLength(text, {bases.viewport.GetDiagonal(), bases.fontSize});
}

// Nothing unless each item is a length that is not negative.
std::optional<std::vector<double>> ReadDashes(std::string_view value, const Bases& bases) {
    std::list<std::string> texts;
    ZAMPrepressCssTokenizer tokens(value, texts);
    std::vector<double> dashes;
    for (; tokens.Peek().type != Type::End; tokens.Next()) {
        if (tokens.Peek().type == Type::Blank || tokens.Peek().Is(',')) {
            continue;
        }
        const auto length = ReadLength(tokens.Peek().source, bases);
        if (!length || *length < 0.0) {
            return std::nullopt;
        }
        dashes.push_back(*length);
    }
    return dashes;
}

} // namespace

Result ZAMPrepressValues::ComputeOpacity(std::string_view value, const Bases& /*bases*/) {
    const std::string_view text = ZAMPrepressCss::Trim(value);
    const bool isPercentage = text.ends_with('%');
    const auto number = ZAMPrepressReadNumber(text.substr(0, text.size() - (isPercentage ? 1 : 0)));
    if (!number) {
        return std::nullopt;
    }
    return ZAMPrepressNumberText(std::clamp(*number / (isPercentage ? 100.0 : 1.0), 0.0, 1.0));
}

Result ZAMPrepressValues::ComputeLength(std::string_view value, const Bases& bases) {
    const auto length = ReadLength(value, bases);
    return length ? Result(ZAMPrepressNumberText(*length)) : std::nullopt;
}

Result ZAMPrepressValues::ComputeSize(std::string_view value, const Bases& bases) {
    const auto length = ReadLength(value, bases);
    return length && *length >= 0.0 ? Result(ZAMPrepressNumberText(*length)) : std::nullopt;
}

Result ZAMPrepressValues::ComputeMiterLimit(std::string_view value, const Bases& /*bases*/) {
    const auto number = ZAMPrepressReadNumber(value);
    return number && *number >= 1.0 ? Result(ZAMPrepressNumberText(*number)) : std::nullopt;
}

Result ZAMPrepressValues::ComputeDashes(std::string_view value, const Bases& bases) {
    if (IsWord(value, "none")) {
        return "none";
    }
    const auto dashes = ReadDashes(value, bases);
    if (!dashes || dashes->empty()) {
        return std::nullopt;
    }
    if (std::ranges::all_of(*dashes, [](double dash) { return dash == 0.0; })) {
        return "none";
    }
    std::string text;
    for (const double dash : *dashes) {
        text.append(text.empty() ? "" : " ");
        ZAMPrepressAppendNumber(text, dash);
    }
    return text;
}

// Markers are always painted last here; of the rest only the first one matters.
Result ZAMPrepressValues::ComputePaintOrder(std::string_view value, const Bases& /*bases*/) {
    std::list<std::string> texts;
    ZAMPrepressCssTokenizer tokens(value, texts);
    std::string_view first;
    for (; tokens.Peek().type != Type::End; tokens.Next()) {
        if (tokens.Peek().IsIdent("fill") || tokens.Peek().IsIdent("normal")) {
            first = first.empty() ? "normal" : first;
        } else if (tokens.Peek().IsIdent("stroke")) {
            first = first.empty() ? "stroke" : first;
        } else if (tokens.Peek().type != Type::Blank && !tokens.Peek().IsIdent("markers")) {
            return std::nullopt;
        }
    }
    return std::string(first.empty() ? "normal" : first);
}

Result ZAMPrepressValues::ComputeReference(std::string_view value, const Bases& /*bases*/) {
    if (IsWord(value, "none")) {
        return "none";
    }
    std::list<std::string> texts;
    ZAMPrepressCssTokenizer tokens(value, texts);
    tokens.SkipBlanks();
    const auto address = ZAMPrepressReadUrl(tokens);
    if (!address) {
        return std::nullopt;
    }
    const std::string_view id = ZAMPrepressGetFragment(*address);
    return id.empty() ? "none" : std::string("url(#").append(id).append(")");
}

Result ZAMPrepressValues::ComputePaint(std::string_view value, const Bases& /*bases*/) {
    return ZAMPrepressPaint::Parse(value) ? Result(value) : std::nullopt;
}

Result ZAMPrepressValues::ComputeColour(std::string_view value, const Bases& /*bases*/) {
    const auto paint = ZAMPrepressPaint::Parse(value);
    if (!paint || !paint->reference.empty()) {
        return std::nullopt;
    }
    if (paint->kind == ZAMPrepressPaint::Kind::CurrentColour) {
        return "currentColor";
    }
    return paint->kind == ZAMPrepressPaint::Kind::Colour ? Result(paint->colour.ToText()) : std::nullopt;
}

Result ZAMPrepressValues::ComputeStopColour(std::string_view value, const Bases& bases) {
    return ComputeColour(value, bases);
}
