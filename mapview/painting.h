#pragma once

#include "core/program.h"

/// Paints every layer whose gate is open, from bottom to top, with the pens as the last paint left them. A
/// failure ends the paint and is told once, after it; the layers behind it are missing.
void picMap_Paint(Program& program);

/// Paints when a refresh is wanted, and answers whether it was; all refreshes of one event are one paint.
bool paint_if_marked(Program& program);
