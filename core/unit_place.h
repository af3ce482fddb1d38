#pragma once

#include "core/surface.h"
#include "core/unit_records.h"

#include <limits>
#include <vector>

/// Where a unit, a vertex or a waypoint is, in map pixels.
inline Point place_of(const oUnits& unit) {
    return {static_cast<double>(unit.xcoord), static_cast<double>(unit.ycoord)};
}

inline Point place_of(const oCoordinates& vertex) {
    return {static_cast<double>(vertex.x_cor), static_cast<double>(vertex.y_cor)};
}

inline Point place_of(const oWaypoint& waypoint) {
    return {static_cast<double>(waypoint.X), static_cast<double>(waypoint.Y)};
}

/// A vertex of the unit's area of operation, which is stored as an offset from the unit.
inline Point place_in_area(const oUnits& unit, const oCoordinates& vertex) {
    return {place_of(unit).x + vertex.x_cor, place_of(unit).y + vertex.y_cor};
}

/// The box around a list of vertices and what the pen's width can touch beside it.
template <class Vertices, class Place>
Bounds bounds_of_vertices(const Surface& surface, const Vertices& vertices, Place place) {
    constexpr double none = std::numeric_limits<double>::infinity();
    Bounds around{none, none, -none, -none};
    for (const auto& vertex : vertices) around = around.with(bounds_of(place(*vertex)));
    return around.grown_by(surface.pen.DrawWidth + 1);
}

/// Draws a segment between each two neighbours of a list of vertices.
template <class Vertices, class Place>
void draw_path(Surface& surface, const Vertices& vertices, Place place) {
    if (!surface.wants(bounds_of_vertices(surface, vertices, place))) return;
    std::vector<Point> points;
    points.reserve(vertices.count());
    for (const auto& vertex : vertices) points.push_back(place(*vertex));
    surface.path(points);
}

/// Draws a polygon with these corners.
template <class Vertices, class Place>
void draw_closed(Surface& surface, const Vertices& vertices, Place place) {
    if (!surface.wants(bounds_of_vertices(surface, vertices, place))) return;
    std::vector<Point> corners;
    for (const auto& vertex : vertices) corners.push_back(place(*vertex));
    surface.polygon(corners);
}
