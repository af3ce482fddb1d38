#pragma once

#include "core/program.h"

/// Sets the main window up in its fixed order: geometry, map, layout, rulers, start values, clock, reference
/// files. Has a trap of its own.
void frmMain_Load(Program& program);
