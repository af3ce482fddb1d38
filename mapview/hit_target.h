#pragma once

#include "core/program.h"

/// The topmost visible control of the map at this map pixel, or the map; in the tray likewise.
HitTarget hit_target(const Program& program, double x, double y, Container container = Container::map);
