#pragma once

#include "core/program.h"

/// The mouse over the overview, in its pixels. Each has a trap of its own.
void picOverviewmap_MouseDown(Program& program, const MapPress& press);
void picOverviewmap_MouseMove(Program& program, const MapPress& press);
void picOverviewmap_MouseUp(Program& program, const MapPress& press);

/// Brings the place of the overview to the middle of the window, as far as the map reaches.
void center_map_on_overview(Program& program, double x, double y);

/// The entries of the overview's popup.
void mnuViewFFoverview_Click(Program& program);
void mnuOVPU_showlines_Click(Program& program);
void mnuOVPU_show_units_Click(Program& program);
