#pragma once

#include "core/program.h"

/// Takes the border off every selected marker and empties the selection. Repaints only while names are shown.
void clear_selection(Program& program);

/// Closes the unit info panel and what hangs on it, and repaints. `curUnit` stays.
void hide_unit_info(Program& program);

/// Puts the unit into the selection and a border around its marker.
void select_unit(Program& program, const std::shared_ptr<oUnits>& unit);

/// Makes the unit the only selected one and shows its panel.
void select_alone(Program& program, const std::shared_ptr<oUnits>& unit);

/// Enables the menu entries for one unit or those for a group.
void set_menus_by_count(Program& program);

/// Selects a marker's unit or takes it out of the selection, as a press with Ctrl does.
void toggle_selection(Program& program, int index);

/// The index of the first selected unit's marker when it is shown on the map, else 0.
int selected_marker(const Program& program);

/// Selects every unit whose marker lies wholly inside the band, wherever it stands. Answers the last one's
/// index, 0 for none.
int select_in_band(Program& program, const ShapeControl& band);
