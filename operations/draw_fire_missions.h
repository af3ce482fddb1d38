#pragma once

#include "core/program.h"

/// Layer: a sign for each fire mission by class and type, and its pattern.
bool fire_missions_are_shown(const Program& program);
void draw_fire_missions(Program& program, Painting& painting);
