// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// Reads lengths and coordinates into user units (SVG 1.1, 7.10; 90 to the inch). It is the base of the parsers that
/// read coordinates. Every reader gives 1 when a value was stored, -1 for an empty text, 0 when the text holds no
/// number; only 1 stores a value (but for the flip of y coordinates, see there).
///
/// A unit counts wherever it stands in the text, and the first one in the order pt, pc, cm, mm, in, % that occurs is
/// taken; any other suffix is ignored.
class ZAMPrintSVGLengthReader {
public:
    ZAMPrintSVGLengthReader() = default;
    ZAMPrintSVGLengthReader(double imageWidth, double imageHeight, bool flipY)
        : _ImageWidth(imageWidth), _ImageHeight(imageHeight), _FlipY(flipY) {}

    /// The document's size, the base of percentages and of the flip. Always 1.
    int SetImageSize(double width, double height);

    /// Percentages count against the normalised diagonal.
    int GetLength(std::string_view text, double& result) const;
    int GetCoordinate(std::string_view text, double& result) const { return GetLength(text, result); }
    /// Percentages count against the width.
    int GetHorLength(std::string_view text, double& result) const;
    int GetXCoordinate(std::string_view text, double& result) const { return GetHorLength(text, result); }
    /// Percentages count against the height.
    int GetVertLength(std::string_view text, double& result) const;
    /// As GetVertLength; then, if y is flipped, `result` becomes height − result, also when nothing was read: a missing
    /// y with the preset 0 is the top of the document.
    int GetYCoordinate(std::string_view text, double& result) const;
    /// A bare number.
    static int GetNumber(std::string_view text, double& result);

    double _ImageWidth = 0.0;
    double _ImageHeight = 0.0;
    bool _FlipY = true;

private:
    int ReadOddLength(std::string_view text, double& result) const;
    int GetDirectedLength(std::string_view text, double percentBase, double& result) const;
};
