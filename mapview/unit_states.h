#pragma once

#include "core/program.h"

/// Shows or hides the state bars at the markers.
void mnuUnitState_Click(Program& program);

/// Puts the bars in their places again while they are shown, as after a unit was edited.
void refresh_unit_states(Program& program);

/// Puts a moved unit's bar at its marker again, in front of all else, while the bars are shown.
void move_state_bar(Program& program, const oUnits& unit);
