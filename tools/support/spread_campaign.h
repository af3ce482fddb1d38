#pragma once

#include "core/program.h"

/// How much of each kind stands on the map.
struct Spread {
    int units;
    int lines;
    int polygons;
    int missions;
    unsigned seed = 1942;
};

/// Puts units with names, zones, fans, waypoints and areas, lines, polygons and fire missions on the map,
/// evenly over it, and switches everything on that can be painted. The same numbers make the same campaign;
/// of it only what can be seen in the area is put there.
void spread_over_map(Program& program, const Spread& spread, const Bounds& area);
