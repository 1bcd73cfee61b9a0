// SPDX-License-Identifier: MIT
#include "prepress/rewrites/ZAMPrepressClips.h"
#include "prepress/rewrites/ZAMPrepressConditions.h"
#include "prepress/rewrites/ZAMPrepressFading.h"
#include "prepress/rewrites/ZAMPrepressMarkers.h"
#include "prepress/rewrites/ZAMPrepressNames.h"
#include "prepress/rewrites/ZAMPrepressNumbers.h"
#include "prepress/rewrites/ZAMPrepressPaints.h"
#include "prepress/rewrites/ZAMPrepressPictures.h"
#include "prepress/rewrites/ZAMPrepressShapes.h"
#include "prepress/rewrites/ZAMPrepressSheets.h"
#include "prepress/rewrites/ZAMPrepressStyle.h"
#include "prepress/rewrites/ZAMPrepressTexts.h"
#include "prepress/rewrites/ZAMPrepressUses.h"
#include "prepress/rewrites/ZAMPrepressViewports.h"
#include "prepress/ZAMPrepressRewrite.h"

namespace {

constexpr ZAMPrepressRewrite kRewrites[] = {
    {"names", ZAMPrepressNames::Concerns, ZAMPrepressNames::Rewrite},
    {"conditions", ZAMPrepressConditions::Concerns, ZAMPrepressConditions::Rewrite, false},
    {"sheets", ZAMPrepressSheets::Concerns, ZAMPrepressSheets::Rewrite},
    {"uses", ZAMPrepressUses::Concerns, ZAMPrepressUses::Rewrite},
    {"viewports", ZAMPrepressViewports::Concerns, ZAMPrepressViewports::Rewrite},
    {kZAMPrepressStyleRewrite, ZAMPrepressStyle::Concerns, ZAMPrepressStyle::Rewrite},
    {"pictures", ZAMPrepressPictures::Concerns, ZAMPrepressPictures::Rewrite, true, true},
    {"shapes", ZAMPrepressShapes::Concerns, ZAMPrepressShapes::Rewrite, true, true},
    {"markers", ZAMPrepressMarkers::Concerns, ZAMPrepressMarkers::Rewrite, true, true},
    {"texts", ZAMPrepressTexts::Concerns, ZAMPrepressTexts::Rewrite, true, true},
    {"paints", ZAMPrepressPaints::Concerns, ZAMPrepressPaints::Rewrite, true, true},
    {"fading", ZAMPrepressFading::Concerns, ZAMPrepressFading::Rewrite, true, true},
    {"clips", ZAMPrepressClips::Concerns, ZAMPrepressClips::Rewrite, true, true},
    {"numbers", ZAMPrepressNumbers::Concerns, ZAMPrepressNumbers::Rewrite},
};

} // namespace

std::span<const ZAMPrepressRewrite> ZAMPrepressGetRewrites() {
    return kRewrites;
}
