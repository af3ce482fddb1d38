#include "program/press_order.h"

#include "annotation/line_press.h"
#include "mapview/map_press.h"
#include "mapview/rubberband.h"
#include "operations/range_tools.h"
#include "operations/unit_tools.h"

#include <array>

namespace {

constexpr unsigned map = press_on::map;
constexpr unsigned all = press_on::map | press_on::marker_first;
constexpr unsigned late = press_on::map | press_on::marker_last;
constexpr int any = 0;
constexpr int B1 = left_button;
constexpr int B2 = right_button;

bool always(const Program& /*program*/) { return true; }

bool moving_fire_mission(const Program& program) { return program.campaign.moving_fire_mission; }
bool selecting_fire_mission(const Program& program) { return program.campaign.selecting_fire_mission; }
bool placing_fire_mission(const Program& program) { return program.campaign.placing_fire_mission; }
bool moving_polygon(const Program& program) { return program.main.moving_polygon; }
bool changing_polygon_point(const Program& program) {
    return program.main.moving_polygon_point || program.main.inserting_polygon_point;
}
bool deleting_polygon(const Program& program) { return program.main.deleting_polygon; }
bool deleting_of_polygon(const Program& program) {
    return program.main.deleting_polygon || program.main.deleting_polygon_point;
}
bool drawing_polygon(const Program& program) { return program.main.drawing_polygon; }
bool moving_waypoint(const Program& program) { return program.main.moving_waypoint; }
bool set_waypoints(const Program& program) { return program.main.set_waypoints; }
bool placing_shape(const Program& program) { return program.main.placing_shape; }
bool moving_shape(const Program& program) { return program.main.moving_shape; }
bool place_unit(const Program& program) { return program.main.place_unit; }
bool placing_label(const Program& program) { return program.campaign.placing_label; }
bool shape_panel_is_open(const Program& program) { return program.main.picPlaceShapes.visible; }

/// The tool of this row does not exist yet: its button is disabled, so that nothing can set its flag. The
/// press ends here as it will then. This must shrink to nothing with the list in not_yet_built.h.
Outcome tool_to_come(Program& /*program*/, const MapPress& /*press*/) { return Outcome::done; }
Outcome pick_to_come(Program& /*program*/, const MapPress& /*press*/) { return Outcome::goes_on; }

constexpr std::array<PressRow, 34> presses{{
    // no targets button applies when        does
    {0, press_on::marker_first, B1, element_is_transferred, tool_to_come},
    {1, all, any, moving_fire_mission, tool_to_come},
    {2, all, any, selecting_fire_mission, tool_to_come},
    {3, all, any, placing_fire_mission, tool_to_come},
    {4, all, B1, moving_polygon, tool_to_come},
    {5, all, B1, changing_polygon_point, tool_to_come},
    {6, all, B1, deleting_of_polygon, tool_to_come},
    {7, all, B2, deleting_polygon, tool_to_come},
    {8, all, any, drawing_polygon, tool_to_come},
    {9, all, B1, moving_waypoint, tool_to_come},
    {10, all, any, set_waypoints, tool_to_come},
    {11, all, any, circles_are_on, press_sets_circles},          // goes on
    {12, all, B1, range_is_checked, press_anchors_range},        // goes on
    {13, all, B1, path_range_is_checked, press_adds_path_point}, // goes on
    {14, all, B2, path_range_is_checked, press_drops_path},      // goes on
    {15, all, any, area_tool_is_on, press_draws_area},
    {16, map, any, element_is_transferred, press_aborts_transfer},
    {17, map, any, group_is_selected, press_with_group},
    {18, all, any, firefan_tool_is_on, press_sets_firefan},
    {19, map | press_on::marker_middle, any, placing_shape, tool_to_come},
    {20, map | press_on::marker_middle, any, moving_shape, tool_to_come},
    {21, map, any, always, press_closes_panel}, // goes on
    {22, late, B1, place_unit, tool_to_come},
    {23, late, B1, is_inserting_line_point, press_inserts_line_point},
    {24, late, B1, is_moving_line_point, press_moves_line_point},
    {25, late, B2, is_moving_line_point, press_drops_pick},
    {26, late, any, is_deleting_line, press_deletes_line},
    {27, late, any, is_deleting_line_point, press_deletes_line_point},
    {28, late, any, is_drawing_lines, press_draws_line},
    {29, late, any, placing_label, tool_to_come},
    {30, map, B1, shape_panel_is_open, pick_to_come}, // goes on
    {31, map, B1, always, press_starts_band},         // goes on
    {32, map, B2, always, press_starts_pan},          // goes on
    {33, map, B2, range_is_checked, press_ends_range},
}};

constexpr std::array<MoveRow, 4> moves{{
    // applies when          does
    {firefan_tool_is_on, turn_firefan},
    {always, stretch_rubber_lines}, // before the readouts, so that one move shows the right range
    {leg_is_measured, show_leg},
    {path_range_is_checked, show_path},
}};

} // namespace

ToolOrder tool_order() { return {presses, moves}; }
