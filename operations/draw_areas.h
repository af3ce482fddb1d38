#pragma once

#include "core/program.h"

/// Layer: the open outline of the area of operation that is being drawn.
bool area_is_being_drawn(const Program& program);
void draw_area_being_drawn(Program& program, Painting& painting);

/// Layer: the area of the unit whose panel is open.
bool selected_area_is_shown(const Program& program);
void draw_selected_aoo(Program& program, Painting& painting);

/// Layer: the areas of all units.
bool all_areas_are_shown(const Program& program);
void draw_all_aoo(Program& program, Painting& painting);
