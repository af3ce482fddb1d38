#pragma once

#include "core/program.h"

/// Makes outline and caption of a shape at `gNextShapeIndex`, in front of all others, and counts the index
/// up. The record's own `shape_index` is left as it is.
void make_shape_controls(Program& program, const oShapes& shape);
