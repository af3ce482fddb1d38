#include "operations/draw_waypoints.h"

#include "core/numbers.h"
#include "core/unit_place.h"

#include <array>

namespace {

void draw_route(Surface& map, const oUnits& unit) {
    map.pen.DrawWidth = 3;
    map.pen.ForeColor = unit.color;
    map.line(place_of(unit), place_of(*unit.waypoints->at(1)));
    draw_path(map, unit.waypoints);
}

/// The texts of a waypoint, one below the other.
std::array<std::string, 3> texts_of(const oWaypoint& waypoint) {
    return {waypoint.end_month + " " + waypoint.end_day + ", " + waypoint.end_hour + ":" +
                waypoint.end_minute,
            format_fixed(waypoint.range / 1000.0, 1, 2) + " Km, at " + number_text(waypoint.speed) + " Km/H",
            waypoint.notes};
}

Point place_of_text(const oWaypoint& waypoint, std::size_t number) {
    constexpr std::array<double, 3> below{8, 20, 32};
    return {place_of(waypoint).x - 60, place_of(waypoint).y + below.at(number)};
}

void print_waypoint(Surface& map, const oWaypoint& waypoint) {
    map.pen.FontBold = true;
    map.pen.ForeColor = 0;
    const auto texts = texts_of(waypoint);
    for (std::size_t i = 0; i < texts.size(); ++i) map.print(place_of_text(waypoint, i), texts[i]);
}

/// Where marks and texts of the unit's waypoints lie, nothing when it has none.
const Bounds& route_bounds(const oUnits& unit) {
    constexpr int largest_size = 12; // no layer writes in larger letters
    return unit.route_bounds.get([&] {
        Bounds bounds = Bounds::nothing();
        if (unit.waypoints.empty()) return bounds;
        for (const auto& waypoint : unit.waypoints) {
            bounds = bounds.with(bounds_of(place_of(*waypoint)));
            const auto texts = texts_of(*waypoint);
            for (std::size_t i = 0; i < texts.size(); ++i)
                bounds = bounds.with(text_bounds(place_of_text(*waypoint, i), texts[i], largest_size));
        }
        return bounds;
    });
}

void draw_points(const Program& program, Surface& map, const oUnits& unit) {
    for (const auto& waypoint : unit.waypoints) {
        map.circle(place_of(*waypoint), 3);
        if (program.campaign.gDispWayptData) print_waypoint(map, *waypoint);
    }
}

void draw_unit_waypoints(const Program& program, Surface& map, const oUnits& unit) {
    const Bounds& bounds = route_bounds(unit);
    if (bounds.is_nothing()) return;
    const bool wanted = map.wants(bounds.with(bounds_of(place_of(unit))).grown_by(4));
    if (wanted) draw_route(map, unit);
    map.pen.DrawWidth = 1;
    map.pen.ForeColor = 0;
    map.pen.FillColor = 0;
    map.pen.FillStyle = 0;
    if (wanted) draw_points(program, map, unit);
    map.pen.FillStyle = 1;
    if (program.campaign.gDispWayptData) map.pen.FontBold = true;
}

/// The waypoints of the unit in hand are left out while they are being set: a layer of their own shows them.
void draw_all_waypoints(const Program& program, Surface& map) {
    const Campaign& campaign = program.campaign;
    map.pen.DrawMode = 13;
    for (const auto& unit : campaign.colUnits)
        if (!(program.main.set_waypoints && unit == campaign.curUnit))
            draw_unit_waypoints(program, map, *unit);
}

/// In the mode that polygons or fire missions have left.
void draw_selected_waypoints(const Program& program, Surface& map) {
    if (program.campaign.curUnit) draw_unit_waypoints(program, map, *program.campaign.curUnit);
}

} // namespace

bool waypoints_are_being_set(const Program& program) {
    const auto& unit = program.campaign.curUnit;
    return unit && program.main.set_waypoints && program.main.linTempLine.visible && !unit->waypoints.empty();
}

void draw_waypoints_being_set(Program& program, Painting& painting) {
    draw_route(painting.map, *program.campaign.curUnit);
}

bool waypoints_are_shown(const Program& program) { return program.campaign.gDispWaypoints; }

void draw_waypoints(Program& program, Painting& painting) {
    if (program.campaign.gDispWayptAll)
        draw_all_waypoints(program, painting.map);
    else if (program.main.picUnitInfo.visible && program.campaign.gDispWayptSelected)
        draw_selected_waypoints(program, painting.map);
}
