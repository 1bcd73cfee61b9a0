// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// Whether elements of that name are drawn where they stand (SVG 1.1, 5.2): shapes, texts, images and their containers.
[[nodiscard]] bool ZAMPrepressIsDrawn(std::string_view name);

/// Whether elements of that name are parts of a text.
[[nodiscard]] bool ZAMPrepressIsTextPart(std::string_view name);

/// Whether elements of that name hold what is drawn and draw nothing themselves.
[[nodiscard]] bool ZAMPrepressIsContainer(std::string_view name);
