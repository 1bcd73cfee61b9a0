// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

/// The kinds of findings of the preflight.
enum class ZAMPrintSVGFault : std::uint8_t {
    // Names that nothing reads.
    UnknownElement,
    MisplacedElement,
    PrefixedName,
    UnknownAttribute,
    UnknownProperty,
    PropertyOnlyAsAttribute,
    PropertyOnlyInStyle,
    ValueNotUnderstood,
    UnknownUnit,
    // What only a prepared document can have.
    StyleSheet,
    Switch,
    Condition,
    TextSpan,
    PlainLink,
    CrowdedNumbers,
    RoundedCorners,
    FilledLine,
    ImageOpacity,
    MiterLimit,
    GroupOpacity,
    FillGradient,
    VectorPattern,
    // What cannot be had or only nearly.
    StrokePaint,
    TextStrokePaint,
    ClipPath,
    ClipShape,
    Mask,
    Filter,
    BlendMode,
    Animation,
    StyleImport,
    WebFont,
    // References.
    MissingReference,
    WrongReference,
    ExternalReference,
    LateDefinition,
    HiddenDefinition,
    EndedDefinition,
    // Pictures and fonts.
    MissingImage,
    RemoteImage,
    ForbiddenImage,
    ImageFormat,
    DamagedImage,
    FontReplaced,
    FontMissing
};

/// What is told of a kind. In the texts "%s" stands for what the finding is about and "%d" for a detail of it.
struct ZAMPrintSVGFaultRow {
    ZAMPrintSVGFault fault;
    std::string_view code;
    std::string_view what;
    std::string_view instead;
};

inline constexpr std::size_t kZAMPrintSVGFaults = static_cast<std::size_t>(ZAMPrintSVGFault::FontMissing) + 1;

/// All rows, in the order of the enumeration.
std::span<const ZAMPrintSVGFaultRow, kZAMPrintSVGFaults> ZAMPrintSVGGetFaults();
