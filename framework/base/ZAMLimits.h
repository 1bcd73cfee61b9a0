// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <limits>

/// What a document may ask for at most, each with its reason. Where the tool's --unlimited lifts a limit the line says
/// so: these only protect time and memory. What a generator's own format bears stands in ZAMPrintCairoLimits.
namespace ZAMLimits {

// The file.

/// Bytes of an input: the XML parser counts them with an int.
inline constexpr std::size_t kInputBytes = std::numeric_limits<int>::max();
/// Bytes of an input that is decompressed: it is kept in memory as a whole. Lifted to kInputBytes.
inline constexpr std::size_t kInflatedBytes = std::size_t{512} << 20U;
/// Bytes that come of each compressed one. Deflate reaches 1,032; drawings reach 10, and grids of equal shapes 100.
/// Lifted.
inline constexpr std::size_t kInflateRatio = 200;
/// Bytes from which on that ratio counts: so few do no harm.
inline constexpr std::size_t kInflateFreeBytes = std::size_t{16} << 20U;

// The document.

/// Elements in elements, the root included, so that what walks a document or a model by recursion needs a small stack.
inline constexpr int kElementDepth = 256;
/// Elements of a document; each takes some hundred bytes until it is printed. Lifted.
inline constexpr std::size_t kElements = 10'000'000;
/// Attributes of an element. SVG knows about 300; rewrites look through the list for each one that they set.
inline constexpr std::size_t kAttributesOfElement = 4096;
/// Bytes of all attributes that no element spells out: a document type can give them to every element at once.
inline constexpr std::size_t kDefaultedBytes = std::size_t{32} << 20U;

// What is reused: drawn more often than it is spelled out.

/// Elements drawn by reuse, at about 10 us and 2 KiB each until they are on paper. Lifted.
inline constexpr std::size_t kReusedElements = 100'000;
/// Bytes of the document that allow one more: large documents reuse more, and padding a small one is no way around.
inline constexpr std::size_t kBytesForEachReused = 10;
/// Points of a path and bytes of a text that make one element more of it.
inline constexpr std::size_t kPointsForOne = 32;
inline constexpr std::size_t kBytesForOne = 256;
/// Uses in uses: what they draw is nested as deep.
inline constexpr int kUseDepth = kElementDepth;
/// Elements in elements of a model, a lone one being 1 high.
inline constexpr int kModelHeight = 256;
/// Gradients and patterns that take what they lack from others, one after the other: people write two.
inline constexpr std::size_t kChainOfServers = 64;
/// What may hold its own kind, and itself: patterns within patterns, markers on markers, clip paths that are clipped,
/// pictures that are documents with such pictures, variables of style sheets, blocks within their blocks. Drawings know
/// a level or two; what is deeper is left out.
inline constexpr std::size_t kPatternDepth = 16;
inline constexpr int kMarkerDepth = 8;
inline constexpr int kClipDepth = 8;
inline constexpr int kPictureDocumentDepth = 8;
inline constexpr int kVariableDepth = 8;
inline constexpr int kSheetDepth = 8;
/// Steps of matching style sheets, for a document and for each of its elements besides: it ends the work where every
/// element meets thousands of selectors or declarations. Drawings need a hundredth of it.
inline constexpr std::size_t kSheetWork = 20'000'000;
inline constexpr std::size_t kSheetWorkForEachElement = 1'000;

// Marks and pictures.

/// Commands, and points, of a path: a mark of more takes a gigabyte before it is drawn. Lifted.
inline constexpr std::size_t kPathCommands = 10'000'000;
/// Entries of a dash list; a longer one makes a solid line. Nobody sees such a list repeat.
inline constexpr std::size_t kDashes = 1000;
/// Pixels of a picture, 512 MiB.
inline constexpr std::size_t kPicturePixels = std::size_t{1} << 27U;
/// Pixels of all pictures of a document, 800 MB: with what is made of them they stay within a gigabyte.
inline constexpr std::size_t kPicturePixelsOfAll = 200'000'000;
/// Bytes of a picture's file, and of one that is copied into the document while that is prepared.
inline constexpr std::size_t kPictureBytes = std::size_t{1} << 29U;
inline constexpr std::size_t kCopiedPictureBytes = std::size_t{1} << 28U;
/// Pixels made for all gradients and patterns of a drawing, held and printed with four bytes each; where there are too
/// many the largest are made of fewer.
inline constexpr std::size_t kPaintPixels = 12'000'000;

} // namespace ZAMLimits
