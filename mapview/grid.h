#pragma once

#include "core/program.h"

/// Layer: the pen as grid and lines expect it.
void reset_pen(Program& program, Painting& painting);

/// Layer: the kilometre lines, one pixel wide, across the whole map.
bool grid_is_shown(const Program& program);
void draw_grid(Program& program, Painting& painting);

/// Layer: the kilometre numbers of both rulers.
void draw_rulers(Program& program, Painting& painting);

/// Toggles the grid.
void cmdGrid_Click(Program& program);
