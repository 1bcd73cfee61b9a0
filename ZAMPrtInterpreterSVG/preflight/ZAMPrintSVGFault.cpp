// SPDX-License-Identifier: MIT
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGFault.h"

#include <array>

namespace {

using Fault = ZAMPrintSVGFault;

constexpr std::array<ZAMPrintSVGFaultRow, kZAMPrintSVGFaults> kRows = {{
    {Fault::UnknownElement, "unknown-element", "nothing reads the element '%s'", "it and all in it is left out"},
    {Fault::MisplacedElement, "misplaced-element", "nothing reads the element '%s' inside '%d'",
     "it and all in it is left out"},
    {Fault::PrefixedName, "prefixed-name", "the element '%s' has a prefix", "it and all in it is left out"},
    {Fault::UnknownAttribute, "unknown-attribute", "nothing reads the attribute '%s' of '%d'",
     "it is drawn as if the attribute were not there"},
    {Fault::UnknownProperty, "unknown-property", "nothing draws the property '%s'",
     "it is drawn as if the property were not set"},
    {Fault::PropertyOnlyAsAttribute, "property-form", "the property '%s' is heard only as an attribute",
     "the declaration in style has no effect"},
    {Fault::PropertyOnlyInStyle, "property-form", "the property '%s' is heard only in style",
     "the attribute has no effect"},
    {Fault::ValueNotUnderstood, "unknown-value", "the value '%d' of '%s' is not understood",
     "the value is passed over or read as another one"},
    {Fault::UnknownUnit, "unknown-unit", "the unit of '%d' in '%s' is not known", "the number counts as user units"},
    {Fault::StyleSheet, "style-sheet", "style sheets are not read", "elements keep the paint that they have without"},
    {Fault::Switch, "switch", "a switch is not read", "it and all in it is left out"},
    {Fault::Condition, "condition", "the condition '%s' is not looked at", "the element is drawn in any case"},
    {Fault::TextSpan, "text-span", "the part '%s' of a text is not read", "its text is left out"},
    {Fault::PlainLink, "plain-link", "the attribute 'href' is not read without its prefix 'xlink:'",
     "it leads nowhere"},
    {Fault::CrowdedNumbers, "crowded-numbers", "numbers in '%s' run together", "they are read as other numbers"},
    {Fault::RoundedCorners, "rounded-corners", "the corners are round", "they are drawn square"},
    {Fault::FilledLine, "filled-line", "the polyline is filled", "only its stroke is drawn"},
    {Fault::ImageOpacity, "image-opacity", "the image is not opaque", "it is drawn opaque"},
    {Fault::MiterLimit, "miter-limit", "the miter limit is %d", "corners are drawn as if it were 4"},
    {Fault::GroupOpacity, "group-opacity", "the group is faded as a whole",
     "each shape in it is, so that those below show through"},
    {Fault::FillGradient, "fill-gradient", "the fill '%s' is a gradient", "the colour in force before is taken"},
    {Fault::VectorPattern, "vector-pattern", "the fill '%s' is a pattern without a picture",
     "the colour in force before is taken"},
    {Fault::StrokePaint, "stroke-paint", "the stroke '%s' is no plain colour", "the colour in force before is taken"},
    {Fault::TextStrokePaint, "stroke-paint", "the stroke '%s' of a text is no plain colour",
     "its mean colour is taken"},
    {Fault::ClipPath, "clip-path", "nothing is clipped, so not by '%s' either", "all is shown"},
    {Fault::ClipShape, "clip-path", "the clipping path '%s' is no upright rectangle",
     "its box clips, unless what is clipped is a single rectangle or image"},
    {Fault::Mask, "mask", "masks are not drawn: '%d'", "all is shown"},
    {Fault::Filter, "filter", "filters are not drawn: '%d'", "it is drawn unfiltered"},
    {Fault::BlendMode, "blend-mode", "colours are not blended: '%d'", "it is painted over what lies below"},
    {Fault::Animation, "animation", "paper does not move: '%s'", "it is drawn as it stands without the animation"},
    {Fault::StyleImport, "style-import", "other style sheets are not fetched: '%s'", "their rules do not apply"},
    {Fault::WebFont, "web-font", "fonts that documents bring along are not loaded", "installed ones are taken"},
    {Fault::MissingReference, "missing-reference", "nothing has the id '%s'", "%d"},
    {Fault::WrongReference, "wrong-reference", "'%s' is not what '%d' can refer to", "the reference has no effect"},
    {Fault::ExternalReference, "external-reference", "'%s' refers to another document", "it leads nowhere"},
    {Fault::LateDefinition, "late-definition", "'%s' is defined behind its use", "the reference leads nowhere"},
    {Fault::HiddenDefinition, "hidden-definition", "'%s' does not stand directly below defs",
     "the reference leads nowhere"},
    {Fault::EndedDefinition, "ended-definition", "'%s' ended with the group that it stands in",
     "the reference leads nowhere"},
    {Fault::MissingImage, "missing-image", "there is no picture file '%s'", "no picture is drawn"},
    {Fault::RemoteImage, "remote-image", "pictures are not fetched from elsewhere: '%s'", "no picture is drawn"},
    {Fault::ForbiddenImage, "forbidden-image", "the document may not read the picture file '%s'",
     "no picture is drawn"},
    {Fault::ImageFormat, "image-format", "the picture '%s' has no known format", "no picture is drawn"},
    {Fault::DamagedImage, "damaged-image", "the picture '%s' is damaged or too large", "no picture is drawn"},
    {Fault::FontReplaced, "font-replaced", "the font '%s' is not installed", "'%d' is taken"},
    {Fault::FontMissing, "font-replaced", "no font of '%s' is installed", "the font in force before is taken"},
}};

constexpr bool IsInOrder() {
    for (std::size_t i = 0; i < kRows.size(); ++i) {
        if (static_cast<std::size_t>(kRows[i].fault) != i) {
            return false;
        }
    }
    return true;
}
static_assert(IsInOrder());

} // namespace

std::span<const ZAMPrintSVGFaultRow, kZAMPrintSVGFaults> ZAMPrintSVGGetFaults() {
    return kRows;
}
