// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

/// What the guard in front of cairo lets through. Device units are points in a PDF and pixels in a picture.
namespace ZAMPrintCairoLimits {

/// Coordinates are cut here, in device units: cairo holds them in 24.8 fixed point, which wraps silently at 8,388,607,
/// and strokes that reach beyond 4,000,000 can take minutes.
inline constexpr double kFarthestPoint = 1e6;

/// A pen's width in device units. With the miter limit its marks end 2,000,000 units from the path.
inline constexpr double kWidestPen = 1e6;

/// The narrow side of a pen that its map flattens, relative to the wide one. Cairo draws with the inverse of the map.
inline constexpr double kFlattestPen = 1e-7;

/// What is cut away stays at least so many device units off the page, pen included.
inline constexpr double kPageMargin = 100.0;

/// Longest dash in device units, more than any path that is left after cutting.
inline constexpr double kLongestDash = 1e9;

/// A dash list that repeats within fewer device units than cairo's coordinates resolve makes a solid line.
inline constexpr double kShortestPeriod = 1.0 / 256.0;

/// Dashes and gaps of one mark. More make a solid line: cairo walks them one by one.
inline constexpr double kMostDashSteps = 1e6;

/// From so many on, a dashed path is cut to what the page shows before its dashes are counted again.
inline constexpr double kManyDashSteps = 1e4;

/// Rows that the edges of one mark in a picture pass, summed up. Cairo visits each of them 15 times to smooth the
/// edges; from here on, where several seconds are at stake and edges cover the picture several times, it need not.
inline constexpr double kMostEdgeRows = 5e6;

/// Pairs of edges that pass the same row, summed up over all rows: edges that cross are sorted again in each row. A
/// star of 15,000 lines over 100 rows has so many and takes a second.
inline constexpr double kMostEdgePairs = 2e9;

/// The em of a text that cairo shows, in device units. Above about 2,500 FreeType fails, and with it all that follows:
/// larger texts become outlines. Smaller ones than the second are left out.
inline constexpr double kLargestEm = 2000.0;
inline constexpr double kSmallestEm = 1e-3;

/// The narrow side of an em that its map flattens, relative to the wide one. Cairo reckons with FreeType's numbers,
/// which have 16 binary places, and drops glyphs whose boxes these make empty: flatter texts become outlines.
inline constexpr double kFlattestEm = 1e-3;

/// The em of glyphs that are pictures, in device units: its narrow side is as long at least. Cairo reckons with the map
/// and the inverse of a picture in 16.16 fixed point.
inline constexpr double kSmallestBitmapEm = 0.1;

/// How far from its origin a glyph has ink, in ems: fonts have coordinates of 16 bits and 1,000 of them or more to the
/// em.
inline constexpr double kFarthestInk = 33.0;

/// From so many points on the outlines of a text become a mark, and the next ones another, to keep memory small.
inline constexpr std::size_t kManyOutlinePoints = 100000;

/// Narrower pictures are left out: cairo's coordinates do not resolve them.
inline constexpr double kThinnestPicture = 1.0 / 256.0;

/// Pictures that reach farther are left out: what is reckoned with them overflows.
inline constexpr double kFarthestPicture = 1e100;

/// A picture that reaches over so many pages is cut first: what readers make of it costs them memory for all of it, and
/// from about 30 pages on they show nothing.
inline constexpr double kMostPagesWide = 4.0;

/// A pixel of a cut picture that is longer is drawn as a picture of its own: cairo finds pixels with maps in 16.16
/// fixed point, which are too coarse for it.
inline constexpr double kLargestPixel = 512.0;

/// In a picture, others are drawn in squares of so many device units, for the same reason.
inline constexpr int kPictureBlock = 1024;

/// Cairo shows no source that is as long as a picture may be: longer ones are divided.
inline constexpr int kLongestSource = 16384;

/// Bitmaps of a pattern that are drawn one by one, where they leave gaps or overlap; more become a bitmap of the gap.
inline constexpr double kMostSingleTiles = 64.0;

/// Bitmaps of a pattern without gaps that a PDF shows as one picture: few of them some readers draw one by one, with
/// seams. It has so many pixels at most.
inline constexpr double kFewTiles = 16.0;
inline constexpr double kMostComposedPixels = 16777216.0;

/// Bitmaps of a pattern that are shorter than this, in device units, show as their mean colour.
inline constexpr double kSmallestTile = 0.25;

/// The shortest side of what a pattern repeats, in device units: smaller bitmaps are put together, with so many pixels
/// to the device unit at most. Readers, and cairo's fixed point, take a million repeats for much work.
inline constexpr double kSmallestCell = 8.0;
inline constexpr double kFinestCell = 16.0;

/// Pixels of all that is made of images for one page, 256 MiB; each counts as so many at least.
inline constexpr std::size_t kMostMadePixels = std::size_t{1} << 26U;
inline constexpr std::size_t kPixelsForEachPicture = 256;

/// Squared lengths, in device units, of the enlarged pixels of all marks of a page whose edges are smoothed: cairo
/// takes as many microseconds, however many pixels a mark has.
inline constexpr double kMostSmoothEdges = 1e6;

/// Pixels that marks of a page cost in PostScript, but for the first mark of each whole image: cairo encodes them for
/// every mark, 5 to 30 million in a second. From there on pictures have half as many pixels a side, then, each time
/// that the second number is reached, half as many again. Bytes of JPEG files count as pixels.
inline constexpr std::size_t kMostWrittenPixels = std::size_t{1} << 24U;
inline constexpr std::size_t kWrittenPixelsToHalve = std::size_t{1} << 20U;

/// Pixels that a document has searched for rings: 32 of the largest pictures, which take about 25 ms each when they are
/// rings, and less otherwise. The same picture is searched again for each aspect that it is shown with.
inline constexpr std::size_t kMostSearchedPixels = std::size_t{1} << 25U;

/// Bytes of what is kept of plain pages until the document ends. Where the pages before have more, cairo draws them and
/// lets go of each: a document of any length is printed in the same memory. A page alone takes cairo more.
inline constexpr std::size_t kMostKeptBytes = std::size_t{1} << 26U;

/// Sides of a PDF page in points (ISO 32000-1, annex C). Below the smallest, readers see an empty box.
inline constexpr double kLargestPdfSide = 14400.0;
inline constexpr double kSmallestPdfSide = 1e-3;

/// Pixels that what is translucent on a page of PostScript becomes: cairo takes a dozen bytes for each. A2 has as many
/// at 300 to the inch.
inline constexpr double kMostFallbackPixels = 33554432.0;

/// Cairo rounds the sides of a PostScript page to whole points and divides by them.
inline constexpr double kSmallestPsSide = 1.0;

/// Sides of an SVG drawing in points, so far within cairo's coordinates that what surrounds the drawing is, too.
inline constexpr double kLargestSvgSide = 100000.0;

/// Sides and area of a picture in pixels. The first is the limit of cairo's image surfaces.
inline constexpr double kLargestPictureSide = 32767.0;
inline constexpr double kMostPixels = 134217728.0;

} // namespace ZAMPrintCairoLimits
