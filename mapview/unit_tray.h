#pragma once

#include "core/program.h"

/// Opens or closes the tray over the unit info panel. Its markers stay in it.
void cmdUnitTray_Click(Program& program);
void cmdUTClose_Click(Program& program);

/// The mouse over the tray, in its pixels. Each has a trap of its own.
void picUnitTray_MouseDown(Program& program, const MapPress& press);
void picUnitTray_MouseMove(Program& program, const MapPress& press);
void picUnitTray_MouseUp(Program& program, const MapPress& press);
