#pragma once

#include "core/program.h"

/// Moves a label on the map so that the point where it was grabbed comes to (x, y). Fails with 5 when its
/// record is gone, with 6 beyond 16 bits.
void move_label(Program& program, int index, double x, double y);

/// Moves a shape by its caption: the point where that was grabbed comes to (x, y), and the shape's centre to
/// the caption's. Fails as `move_label` does.
void move_shape_by_caption(Program& program, int index, double x, double y);
