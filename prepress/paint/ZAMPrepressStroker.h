// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathVector2D.h"
#include "prepress/geometry/ZAMPrepressPathBuilder.h"
#include "prepress/paint/ZAMPrepressStroke.h"

/// Appends to a path what the strokes of lines cover, piece by piece: bands, what joins them, and their ends.
class ZAMPrepressStroker {
public:
    ZAMPrepressStroker(const ZAMPrepressStroke& stroke, double tolerance, ZAMPrepressPath& outline);

    /// False, and not all of it added, when the outline has more vertices than that.
    bool Add(const ZAMPrepressFlatLine& line, std::size_t mostVertices);

private:
    using Points = std::vector<ZAMMathPoint2D>;
    struct Edge {
        ZAMMathVector2D direction; // of length 1
        double length;
    };

    void AddBand(std::size_t first, std::size_t end);
    void AddJoin(const ZAMMathPoint2D& corner, const ZAMMathVector2D& before, const ZAMMathVector2D& after,
                 ZAMPrepressStroke::Join join);
    void AddCap(const ZAMMathPoint2D& point, const ZAMMathVector2D& outward);
    void AddFan(const ZAMMathPoint2D& middle, const ZAMMathVector2D& from, double angle);
    void AddPiece(const Points& points);
    void SetLine(const ZAMPrepressFlatLine& line);
    [[nodiscard]] bool IsSmooth(std::size_t vertex) const;
    [[nodiscard]] ZAMMathVector2D GetSide(const ZAMMathVector2D& direction) const;

    const ZAMPrepressStroke& _Stroke;
    double _Half; // of the width
    double _Tolerance;
    double _FanStep; // angle
    ZAMPrepressPath& _Outline;
    ZAMPrepressPathBuilder _Builder;
    std::vector<ZAMPrepressFlatLine::Vertex> _Vertices; // of the line at hand, that of its start at its end again
    std::vector<Edge> _Edges;                           // each from the vertex of its number to the next
};
