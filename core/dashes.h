#pragma once

#include "core/surface.h"

#include <span>
#include <vector>

/// Strokes and gaps in turn, pixels. Styles: 1 dash, 2 dot, 3 dash-dot, 4 dash-dot-dot; none for any other.
std::span<const double> dash_pattern(int style);

/// The strokes of a broken line as pairs of ends, both ends inked, as far as they can be seen within the
/// bounds. The pattern starts at the line's own start, wherever that is, so that it stays on the map when the
/// view moves. A style without a pattern gives the line as it is.
std::vector<Point> dashes(Point from, Point to, int style, const Bounds& within);
