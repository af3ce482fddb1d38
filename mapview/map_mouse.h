#pragma once

#include "core/program.h"

/// The mouse over the map, in map pixels. Buttons are 1 left, 2 right, 4 middle.
struct MapPress {
    int button = 0;
    int shift = 0; // 1 Shift, 2 Ctrl
    double x = 0;
    double y = 0;
};

/// Each has a trap of its own.
void picMap_MouseDown(Program& program, const MapPress& press);
void picMap_MouseMove(Program& program, const MapPress& press);
void picMap_MouseUp(Program& program, const MapPress& press);

/// The pointer moves over a marker, a label or a shape's caption: like the map, except that the map's own
/// record of the pointer stays.
void control_MouseMove(Program& program, const MapPress& press);
