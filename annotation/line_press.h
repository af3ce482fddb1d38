#pragma once

#include "core/program.h"

// What a press does with the line tool on; coordinates are map pixels.

bool is_inserting_line_point(const Program& program);
Outcome press_inserts_line_point(Program& program, const MapPress& press);

bool is_moving_line_point(const Program& program);
Outcome press_moves_line_point(Program& program, const MapPress& press);
Outcome press_drops_pick(Program& program, const MapPress& press);

bool is_deleting_line(const Program& program);
Outcome press_deletes_line(Program& program, const MapPress& press);

bool is_deleting_line_point(const Program& program);
Outcome press_deletes_line_point(Program& program, const MapPress& press);

bool is_drawing_lines(const Program& program);
Outcome press_draws_line(Program& program, const MapPress& press);

/// One left press in Draw mode: the first vertex of a new line or the next of the open one.
void add_line_point(Program& program, double x, double y);
/// Look for the vertex at the point and take it in hand, its edges following the pointer.
void pick_line_point_for_move(Program& program, double x, double y);
void pick_line_point_for_insert(Program& program, double x, double y);
/// Removes the line, of several the one drawn last, that has a vertex at the point.
void delete_line_at(Program& program, double x, double y);
/// Removes the first vertex at the point unless its line would have but one left.
void delete_line_point_at(Program& program, double x, double y);
