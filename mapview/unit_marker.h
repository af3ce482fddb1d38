#pragma once

#include "core/program.h"

inline constexpr double marker_width = 29;
inline constexpr double marker_height = 31;
inline const std::string blank_symbol = "\\data\\forces\\blank.gif";

/// Makes marker and overview dot of a unit at `gNextUnitIndex`, in front of all others, and counts the index
/// up. A missing picture is told, the unit's symbol becomes the blank one. Fails with 481 when the picture is
/// damaged; then nothing was made.
void make_unit_marker(Program& program, oUnits& unit);
