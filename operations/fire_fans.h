#pragma once

#include "core/program.h"

/// The compass bearing from the unit to a map pixel, whole degrees; 180 on the unit itself.
std::int16_t firefan_angle(const oUnits& unit, double x, double y);

/// Turns the fan of `curUFE` to a map pixel and repaints. Has a trap of its own.
void set_firefan_angle(Program& program, double x, double y);

/// Layer: what the overview shows, drawn anew: the fans of all units, then the lines.
void draw_overview(Program& program, Painting& painting);

/// Layer: the fans of all units, or of the one whose panel is open.
bool firefans_are_shown(const Program& program);
void draw_firefans(Program& program, Painting& painting);
