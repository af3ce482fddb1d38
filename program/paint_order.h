#pragma once

#include "core/program.h"

#include <span>

/// The layers of the map, from bottom to top.
std::span<const PaintLayer> paint_order();
