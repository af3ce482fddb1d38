#include "operations/draw_waypoints.h"

#include "core/numbers.h"
#include "core/unit_place.h"

namespace {

void draw_route(Surface& map, const oUnits& unit) {
    map.pen.DrawWidth = 3;
    map.pen.ForeColor = unit.color;
    map.line(place_of(unit), place_of(*unit.waypoints->at(1)));
    draw_path(map, unit.waypoints, [](const oWaypoint& waypoint) { return place_of(waypoint); });
}

/// What the three texts of a waypoint can touch.
Bounds texts_bounds(const oWaypoint& waypoint, Point at, int font_size) {
    constexpr std::size_t numbers_and_words = 60;
    const std::size_t letters = numbers_and_words + waypoint.end_month.size() + waypoint.end_day.size() +
                                waypoint.end_hour.size() + waypoint.end_minute.size() + waypoint.notes.size();
    return text_bounds({at.x - 60, at.y + 8}, letters, font_size);
}

void print_waypoint(Surface& map, const oWaypoint& waypoint) {
    const Point at = place_of(waypoint);
    map.pen.FontBold = true;
    map.pen.ForeColor = 0;
    // Most are settled by where their texts begin, without a look at these.
    const double em = 2.0 * map.pen.FontSize;
    if (at.x - 60 - em > map.wanted.right || at.y + 8 - em > map.wanted.bottom) return;
    if (!map.wants(texts_bounds(waypoint, at, map.pen.FontSize))) return;
    map.print({at.x - 60, at.y + 8}, waypoint.end_month + " " + waypoint.end_day + ", " + waypoint.end_hour +
                                         ":" + waypoint.end_minute);
    map.print({at.x - 60, at.y + 20}, format_fixed(waypoint.range / 1000.0, 1, 2) + " Km, at " +
                                          number_text(waypoint.speed) + " Km/H");
    map.print({at.x - 60, at.y + 32}, waypoint.notes);
}

void draw_unit_waypoints(const Program& program, Surface& map, const oUnits& unit) {
    if (unit.waypoints.empty()) return;
    draw_route(map, unit);
    map.pen.DrawWidth = 1;
    map.pen.ForeColor = 0;
    map.pen.FillColor = 0;
    map.pen.FillStyle = 0;
    for (const auto& waypoint : unit.waypoints) {
        map.circle(place_of(*waypoint), 3);
        if (program.campaign.gDispWayptData) print_waypoint(map, *waypoint);
    }
    map.pen.FillStyle = 1;
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
