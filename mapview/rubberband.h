#pragma once

#include "core/program.h"

/// Starts a band of no size at a point of the map or of the tray.
void start_band(Program& program, ShapeControl& band, double x, double y);

/// Lets the band reach from where it started to the pointer.
void stretch_band(const Program& program, ShapeControl& band, double x, double y);

/// Whether the band stands and no tool keeps it from growing.
bool band_may_grow(const Program& program, const ShapeControl& band);

/// Row: a left press starts the map's band.
Outcome press_starts_band(Program& program, const MapPress& press);

/// End of the map's band: its markers are the selection; of a single one the panel is shown.
void finish_band(Program& program);
