// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathBox2D.h"

#include <optional>
#include <string>
#include <string_view>

/// Links as cairo's tags spell them.
namespace ZAMPrintCairoLink {

/// The attributes of a link tag for an area of the page, in points from the page's upper left corner. The address may
/// be an IRI (RFC 3987): it becomes the URI (RFC 3986) that stands for it. Nothing when it cannot be written: it is
/// empty or not well-formed UTF-8.
[[nodiscard]] std::optional<std::string> MakeAttributes(const ZAMMathBox2D& area, std::string_view address);

} // namespace ZAMPrintCairoLink
