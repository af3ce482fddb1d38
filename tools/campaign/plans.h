#pragma once

#include "core/program.h"

/// Draws the plans of the operation on the map: front line, boundaries, objectives, labels, marches, areas
/// and fire missions.
void draw_operation(Program& program);

/// The same in small: an attack of one regiment across the river.
void draw_lesson(Program& program);
