#pragma once

#include "core/program.h"

// Tools of the unit info panel that work on the map.

/// Turns the drawing of the unit's area of operation on or off.
void cmdDrawAOO_Click(Program& program);
/// Asks, then removes the unit's area of operation.
void cmdDelAOO_Click(Program& program);
bool area_tool_is_on(const Program& program);
Outcome press_draws_area(Program& program, const MapPress& press);

/// Turns the turning of the element's fan on or off.
void cmdSetFirefan_Click(Program& program);
bool firefan_tool_is_on(const Program& program);
Outcome press_sets_firefan(Program& program, const MapPress& press);
void turn_firefan(Program& program, const MapPress& press);
