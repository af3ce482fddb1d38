#pragma once

#include "core/program.h"

/// Layer: ten rings, a kilometre apart, around each centre.
bool range_circles_are_shown(const Program& program);
void draw_all_range_circles(Program& program, Painting& painting);

/// Layer: the path whose length is being measured.
bool path_is_measured(const Program& program);
void draw_measured_path(Program& program, Painting& painting);
