#pragma once

#include "core/surface.h"

#include <string>
#include <vector>

/// The strokes of one segment of a unit boundary, its points in pairs: the line to 12 pixels before the
/// middle, the sign of the echelon, and the line from 12 pixels behind the middle. An unknown echelon has no
/// sign. Segments under 24 pixels cross themselves.
std::vector<Point> boundary_strokes(Point from, Point to, const std::string& echelon);
