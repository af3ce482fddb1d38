#pragma once

#include "core/program.h"

// The tools that measure on the map and leave nothing behind.

/// Turn the two-point and the path measure on or off.
void cmdRangecheck_Click(Program& program);
void cmdPathRange_Click(Program& program);
/// Turns the range circles on or off.
void mnuRangeCircles_Click(Program& program);

bool circles_are_on(const Program& program);
Outcome press_sets_circles(Program& program, const MapPress& press);

bool range_is_checked(const Program& program);
Outcome press_anchors_range(Program& program, const MapPress& press);
Outcome press_ends_range(Program& program, const MapPress& press);

bool path_range_is_checked(const Program& program);
Outcome press_adds_path_point(Program& program, const MapPress& press);
Outcome press_drops_path(Program& program, const MapPress& press);

/// The status text while the pointer moves.
bool leg_is_measured(const Program& program);
void show_leg(Program& program, const MapPress& press);
void show_path(Program& program, const MapPress& press);
