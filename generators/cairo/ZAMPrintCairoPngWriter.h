// SPDX-License-Identifier: MIT
#pragma once

#include "framework/print/ZAMPrintParameters.h"
#include "generators/cairo/ZAMPrintCairoStream.h"

#include <cairo.h>
#include <string>

/// Writes pictures as PNG (ISO 15948), six times as fast as cairo's own writer.
namespace ZAMPrintCairoPngWriter {

/// Writes an ARGB32 picture with its resolution in pixels to the inch. It has an alpha channel unless all is opaque,
/// and the time of its creation when the metadata tell one. Throws ZAMPrintCairoFailure or bad_alloc.
void Write(cairo_surface_t* picture, double resolution, const ZAMPrintMetadata& metadata, ZAMPrintCairoStream& stream);

/// Gives the file of an ARGB32 or RGB24 picture, with its pixels and nothing else. Throws bad_alloc.
std::string Encode(cairo_surface_t* picture);

} // namespace ZAMPrintCairoPngWriter
