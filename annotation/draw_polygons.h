#pragma once

#include "core/program.h"

/// Layer: the sides of the polygon that is being drawn.
bool polygon_is_being_drawn(const Program& program);
void draw_polygon_being_drawn(Program& program, Painting& painting);

/// Layer: the polygons with their notes.
bool polygons_are_shown(const Program& program);
void draw_polygons(Program& program, Painting& painting);
