#pragma once

#include "tools/markers/canvas.h"

#include <string>

/// The empty box of a unit.
void draw_box(Canvas& canvas);

/// The marker of a unit type: box, branch and tag from the words of its name, the echelon's sign above.
Canvas marker(const std::string& name, const std::string& echelon);
