#include "program/paint_order.h"

#include "annotation/draw_lines.h"
#include "annotation/draw_polygons.h"
#include "mapview/draw_units.h"
#include "mapview/grid.h"
#include "operations/draw_areas.h"
#include "operations/draw_fire_missions.h"
#include "operations/draw_ranges.h"
#include "operations/draw_waypoints.h"
#include "operations/fire_fans.h"
#include "operations/security_zones.h"

#include <array>

namespace {

bool always(const Program& /*program*/) { return true; }

constexpr std::array<PaintLayer, 20> layers{{
    // no  applies when             paints
    {1, security_zones_are_shown, draw_security_zones},
    {2, fire_missions_are_shown, draw_fire_missions},
    {3, hierarchy_is_shown, draw_hierarchy},
    {4, polygon_is_being_drawn, draw_polygon_being_drawn},
    {5, polygons_are_shown, draw_polygons},
    {6, waypoints_are_being_set, draw_waypoints_being_set},
    {7, waypoints_are_shown, draw_waypoints},
    {8, range_circles_are_shown, draw_all_range_circles},
    {9, area_is_being_drawn, draw_area_being_drawn},
    {10, path_is_measured, draw_measured_path},
    {11, always, reset_pen},
    {12, grid_is_shown, draw_grid},
    {13, always, draw_rulers},
    {14, there_are_lines, draw_lines},
    {15, unit_names_are_shown, draw_unit_names},
    {16, unit_hq_names_are_shown, draw_unit_hq_names},
    {17, always, draw_overview},
    {18, firefans_are_shown, draw_firefans},
    {19, selected_area_is_shown, draw_selected_aoo},
    {20, all_areas_are_shown, draw_all_aoo},
}};

} // namespace

std::span<const PaintLayer> paint_order() { return layers; }
