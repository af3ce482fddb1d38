#pragma once

#include "core/program.h"

/// Moves a marker so that the point where it was grabbed comes to (x, y) of its container, but not with its
/// centre beyond an edge. The unit takes the centre, rounded. Fails with 5 or 340 when there is no such unit.
void move_unit_marker(Program& program, int index, double x, double y);

/// Moves a marker's centre to (x, y), which the unit takes exactly.
void move_unit_marker_to(Program& program, int index, std::int16_t x, std::int16_t y);

/// Drops the dragged marker at (x, y) of a container, and with it the rest of a selected group, each at its
/// distance.
void drop_markers(Program& program, Container container, double x, double y);

/// Toggles whether areas of operation stay in place when their units move.
void mnuLeaveAOO_Click(Program& program);

/// Asks for a grid reference and moves the unit of the popup there.
void mnuUP_moveto_Click(Program& program);
