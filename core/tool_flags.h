#pragma once

#include <cstdint>
#include <string>

/// The main window's tool flags: a tool is on while its flag is. All start off.
struct ToolFlags {
    bool show_coords = false;
    bool place_unit = false;
    bool unit_deleted = false;
    bool set_waypoints = false;
    bool moving_waypoint = false;
    bool drawing_lines = false;
    bool line_ended = false;
    bool deleting_line = false;
    bool deleting_line_point = false;
    bool moving_line_point = false;
    bool inserting_line_point = false;
    bool placing_shape = false;
    bool moving_shape = false;
    bool map_popup_shown = false;
    bool transferring_fe = false;
    bool setting_firefan = false;
    bool drawing_aoo = false;
    bool aoo_popup_guard = false;
    bool checking_range = false;
    bool checking_path_range = false;
    bool showing_range_circles = false;
    bool drawing_polygon = false;
    bool deleting_polygon = false;
    bool deleting_polygon_point = false;
    bool moving_polygon = false;
    bool moving_polygon_point = false;
    bool inserting_polygon_point = false;
    bool hierarchy_on = false;
    bool edge_scrolling = false;

    std::int16_t selected_point = 0; // 1-based vertex picked for a move or an insert; 0: none
    std::string selected_waypoint;   // ID of the waypoint picked for moving
};
