#pragma once

#include "core/program.h"

/// Layer: the links from the active unit to its HQ and to all units under it. Fails with 5 when a linked unit
/// is gone, with 28 when the links run in a circle.
bool hierarchy_is_shown(const Program& program);
void draw_hierarchy(Program& program, Painting& painting);

/// Layers: the names under the visible markers, and their HQs' names beside them.
bool unit_names_are_shown(const Program& program);
void draw_unit_names(Program& program, Painting& painting);
bool unit_hq_names_are_shown(const Program& program);
void draw_unit_hq_names(Program& program, Painting& painting);
