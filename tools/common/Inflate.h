// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// Whether the bytes begin as those of a gzip file do (RFC 1952), as SVG documents with the ending svgz are.
[[nodiscard]] bool IsCompressed(std::string_view bytes);

/// The content of a gzip file, of one member or more. Throws a Failure, with `name` in it, when the bytes are damaged
/// or cut short, or hold more than ZAMLimits allow; those of the unlimited only when `isUnlimited`.
[[nodiscard]] std::string Inflate(std::string_view bytes, const std::string& name, bool isUnlimited);
