#include "operations/draw_waypoints.h"

#include "core/numbers.h"
#include "core/unit_place.h"

#include <algorithm>
#include <cstddef>

#include <array>

namespace {

void draw_route(Surface& map, const oUnits& unit) {
    map.pen.DrawWidth = 3;
    map.pen.ForeColor = unit.color;
    map.line(place_of(unit), place_of(*unit.waypoints->at(1)));
    draw_path(map, unit.waypoints);
}

constexpr double left_of_waypoint = 60;

void print_waypoint(Surface& map, const oWaypoint& waypoint) {
    const Point at = place_of(waypoint);
    const double left = at.x - left_of_waypoint;
    map.pen.FontBold = true;
    map.pen.ForeColor = 0;
    map.print({left, at.y + 8}, waypoint.end_month + " " + waypoint.end_day + ", " + waypoint.end_hour + ":" +
                                    waypoint.end_minute);
    map.print({left, at.y + 20}, format_fixed(waypoint.range / 1000.0, 1, 2) + " Km, at " +
                                     number_text(waypoint.speed) + " Km/H");
    map.print({left, at.y + 32}, waypoint.notes);
}

/// What mark and texts of a waypoint can touch, the texts in letters of up to twelve points.
Bounds bounds_of_waypoint(const oWaypoint& waypoint) {
    constexpr int largest_size = 12;
    constexpr double em = 2.0 * largest_size;
    constexpr std::size_t length_of_numbers = 60;
    std::size_t letters = length_of_numbers;
    std::ptrdiff_t line_ends = 0;
    for (const std::string* text : {&waypoint.end_month, &waypoint.end_day, &waypoint.end_hour,
                                    &waypoint.end_minute, &waypoint.notes}) {
        letters += text->size();
        line_ends += std::count(text->begin(), text->end(), '\n');
    }
    const Point at = place_of(waypoint);
    return {at.x - left_of_waypoint - em, at.y - em, at.x + em * static_cast<double>(letters),
            at.y + em * static_cast<double>(line_ends + 4)};
}

/// Where marks and texts of the unit's waypoints lie, nothing when it has none.
const Bounds& route_bounds(const oUnits& unit) {
    return unit.route_bounds.get([&] {
        Bounds bounds = Bounds::nothing();
        if (unit.waypoints.empty()) return bounds;
        for (const auto& waypoint : unit.waypoints) bounds = bounds.with(bounds_of_waypoint(*waypoint));
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
