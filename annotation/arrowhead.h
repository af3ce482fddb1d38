#pragma once

#include "core/program.h"

/// Computes the two barb ends of a line from its last two vertices. Fails with 9 when it has but one.
void find_arrowhead(oLines& line);

/// The same for the line in hand. Has a trap of its own.
void find_arrowhead(Program& program);
