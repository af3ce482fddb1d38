#pragma once

#include "core/program.h"

// Rows of the press that belong to no tool.

/// While a group is selected a right press takes the selection off; other buttons do nothing.
bool group_is_selected(const Program& program);
Outcome press_with_group(Program& program, const MapPress& press);

/// Any button but the right one closes the panel, and the left one takes the selection off a single unit.
Outcome press_closes_panel(Program& program, const MapPress& press);

/// A right press is where a pan starts.
Outcome press_starts_pan(Program& program, const MapPress& press);

/// The free ends of the rubber lines follow the pointer.
void stretch_rubber_lines(Program& program, const MapPress& press);

/// While an element is being transferred a press on the map asks whether to give that up.
bool element_is_transferred(const Program& program);
Outcome press_aborts_transfer(Program& program, const MapPress& press);
