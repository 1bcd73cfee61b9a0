// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathBox2D.h"
#include "framework/mathematics/ZAMMathPoint2D.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// Links as the attributes of cairo's tags spell them. Places are in points from the page's upper left corner.
namespace ZAMPrintCairoLink {

/// A link from an area of the page. The address may be an IRI (RFC 3987): it becomes the URI (RFC 3986) that stands for
/// it. Nothing when it cannot be written: it is empty or not well-formed UTF-8.
[[nodiscard]] std::optional<std::string> MakeAttributes(const ZAMMathBox2D& area, std::string_view address);
/// A link from an area of the page to the destination with the number.
[[nodiscard]] std::string MakeAttributes(const ZAMMathBox2D& area, std::size_t destination);
/// The destination with the number.
[[nodiscard]] std::string MakeDestination(std::size_t number, const ZAMMathPoint2D& place);

} // namespace ZAMPrintCairoLink
