#pragma once

#include "core/program.h"

/// Layer: lines, boundaries and arrowheads. No display option stops it.
bool there_are_lines(const Program& program);
void draw_lines(Program& program, Painting& painting);

/// The lines on the overview, all plain.
void draw_overview_lines(const Program& program, Painting& painting);
