#pragma once

#include "core/program.h"

/// Layer: the path from the active unit over its waypoints while more are being set.
bool waypoints_are_being_set(const Program& program);
void draw_waypoints_being_set(Program& program, Painting& painting);

/// Layer: paths, dots and texts of the waypoints of all units, or of the one whose panel is open. The latter
/// sets no draw mode: it has the one that polygons or fire missions left.
bool waypoints_are_shown(const Program& program);
void draw_waypoints(Program& program, Painting& painting);
