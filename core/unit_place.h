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

inline Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }

/// The box around corners, nothing when there are none.
template <class Corners> Bounds box_of(const Corners& corners) {
    Bounds box = Bounds::nothing();
    for (const auto& corner : corners) box = box.with(bounds_of(place_of(*corner)));
    return box;
}

/// The places of corners beside an origin, in the surface's own room for them.
template <class Corners>
const std::vector<Point>& places(Surface& surface, const Corners& corners, Point origin) {
    surface.scratch.clear();
    for (const auto& corner : corners) surface.scratch.push_back(place_of(*corner) + origin);
    return surface.scratch;
}

/// Draws a segment between each two neighbours.
template <class Corners> void draw_path(Surface& surface, const Corners& corners, Point origin = {}) {
    surface.path(places(surface, corners, origin));
}

/// Draws a polygon with these corners.
template <class Corners> void draw_closed(Surface& surface, const Corners& corners, Point origin = {}) {
    surface.polygon(places(surface, corners, origin));
}
