#pragma once

#include "core/surface.h"
#include "core/unit_records.h"

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

/// Draws a segment between each two neighbours of a list of vertices.
template <class Vertices, class Place>
void draw_path(Surface& surface, const Vertices& vertices, Place place) {
    Point last;
    bool first = true;
    for (const auto& vertex : vertices) {
        const Point here = place(*vertex);
        if (!first) surface.line(last, here);
        first = false;
        last = here;
    }
}

/// Draws a polygon with these corners; there must be one at least.
template <class Vertices, class Place>
void draw_closed(Surface& surface, const Vertices& vertices, Place place) {
    Bounds around = bounds_of(place(*vertices->at(1)));
    for (const auto& vertex : vertices) around = around.with(bounds_of(place(*vertex)));
    if (!surface.wants(around.grown_by(surface.pen.DrawWidth + 1))) return;
    std::vector<Point> corners;
    for (const auto& vertex : vertices) corners.push_back(place(*vertex));
    surface.polygon(corners);
}
