#pragma once

#include "core/program.h"

/// Paints every layer whose gate is open, from bottom to top, with the pens as the last paint left them, as
/// far as it is in view or near it. A failure ends the paint and is told once, after it; the layers behind it
/// are missing.
void picMap_Paint(Program& program);

/// Paints when a refresh is wanted, and answers whether it was; all refreshes of one event are one paint.
bool paint_if_marked(Program& program);

/// Paints once more what the last refresh painted, when the view was scrolled away from what that covered. To
/// the pens of the next refresh it is as if it had not been, and failures are not told again.
void cover_view(Program& program);
