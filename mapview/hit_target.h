#pragma once

#include "core/program.h"

/// What the pointer is over. Shapes themselves let the mouse through to the map.
enum class TargetKind : std::uint8_t { map, unit, label, shape_label };

struct HitTarget {
    TargetKind kind = TargetKind::map;
    int index = 0; // of the control
};

/// The topmost visible control of the map at this map pixel, or the map; in the tray likewise.
HitTarget hit_target(const Program& program, double x, double y, Container container = Container::map);
