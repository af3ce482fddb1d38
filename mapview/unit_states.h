#pragma once

#include "core/program.h"

/// Shows or hides the state bars at the markers.
void mnuUnitState_Click(Program& program);

/// Puts the bars in their places again while they are shown, as after a unit was edited.
void refresh_unit_states(Program& program);

/// Moves a marker's bar along, in front of all else, while the bars are shown.
void move_state_bar(Program& program, int index);
