#include "operations/draw_waypoints.h"

#include "core/numbers.h"
#include "core/unit_place.h"
#include "operations/unit_plans.h"

namespace {

void draw_route(Surface& map, const oUnits& unit) {
    map.pen.DrawWidth = 3;
    map.pen.ForeColor = unit.color;
    map.line(place_of(unit), place_of(*unit.waypoints->at(1)));
    draw_path(map, unit.waypoints);
}

void print_waypoint(Surface& map, const oWaypoint& waypoint) {
    const Point at = place_of(waypoint);
    const double left = at.x - left_of_waypoint_texts;
    map.pen.FontBold = true;
    map.pen.ForeColor = 0;
    map.print({left, at.y + 8}, waypoint.end_month + " " + waypoint.end_day + ", " + waypoint.end_hour + ":" +
                                    waypoint.end_minute);
    map.print({left, at.y + 20}, format_fixed(waypoint.range / 1000.0, 1, 2) + " Km, at " +
                                     number_text(waypoint.speed) + " Km/H");
    map.print({left, at.y + 32}, waypoint.notes);
}

void draw_points(const Program& program, Surface& map, const oUnits& unit) {
    for (const auto& waypoint : unit.waypoints) {
        map.circle(place_of(*waypoint), 3);
        if (program.campaign.gDispWayptData) print_waypoint(map, *waypoint);
    }
}

/// The pen as the waypoints of a unit leave it.
void set_pen_behind_waypoints(const Program& program, Surface& map) {
    map.pen.DrawWidth = 1;
    map.pen.ForeColor = 0;
    map.pen.FillColor = 0;
    map.pen.FillStyle = 1;
    if (program.campaign.gDispWayptData) map.pen.FontBold = true;
}

void draw_unit_waypoints(const Program& program, Surface& map, const oUnits& unit) {
    draw_route(map, unit);
    map.pen.DrawWidth = 1;
    map.pen.ForeColor = 0;
    map.pen.FillColor = 0;
    map.pen.FillStyle = 0;
    draw_points(program, map, unit);
    set_pen_behind_waypoints(program, map);
}

/// The waypoints of the unit in hand are left out while they are being set: a layer of their own shows them.
void draw_all_waypoints(Program& program, Surface& map) {
    map.pen.DrawMode = 13;
    for (const auto& [unit, bounds] : unit_plans(program).routes) {
        if (program.main.set_waypoints && unit == program.campaign.curUnit.get()) continue;
        if (map.wants(bounds))
            draw_unit_waypoints(program, map, *unit);
        else
            set_pen_behind_waypoints(program, map);
    }
}

/// In the mode that polygons or fire missions have left.
void draw_selected_waypoints(const Program& program, Surface& map) {
    const auto& unit = program.campaign.curUnit;
    if (unit && !unit->waypoints.empty()) draw_unit_waypoints(program, map, *unit);
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
