#pragma once

#include "core/program.h"

/// Draws the plans of the operation on the map: front line, boundaries, objectives, labels, marches, areas
/// and fire missions.
void draw_plans(Program& program);
