#pragma once

#include "core/surface.h"
#include "core/unit_records.h"

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

/// The places of a list of vertices, in the surface's own room for them.
template <class Vertices, class Place>
const std::vector<Point>& places(Surface& surface, const Vertices& vertices, Place place) {
    surface.scratch.clear();
    for (const auto& vertex : vertices) surface.scratch.push_back(place(*vertex));
    return surface.scratch;
}

/// Draws a segment between each two neighbours of a list of vertices.
template <class Vertices, class Place>
void draw_path(Surface& surface, const Vertices& vertices, Place place) {
    surface.path(places(surface, vertices, place));
}

/// Draws a polygon with these corners.
template <class Vertices, class Place>
void draw_closed(Surface& surface, const Vertices& vertices, Place place) {
    surface.polygon(places(surface, vertices, place));
}
