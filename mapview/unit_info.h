#pragma once

#include "core/program.h"

/// Fills the unit info panel with the unit and what is under it, makes it `curUnit` and repaints. Has a trap
/// of its own.
void show_unit_info(Program& program, const std::string& id);

/// Appends the units below this one, depth first, each with its depth as its name: "1" for children, to "10"
/// and no deeper. Fails with 5 when one is gone, with 457 when one comes twice.
void collect_subordinates(const Program& program, const std::string& id, Collection<oChildren>& list);

/// Shows a unit wherever it is: centres the map on it, selects it alone and shows its panel. Fails with 5
/// when it is gone.
void locate_unit(Program& program, const std::string& id);

void lstUIfe_Click(Program& program);
void lstUIchildunits_DblClick(Program& program);
void cmdSelectHQ_Click(Program& program);
void chkShowAllFE_Click(Program& program);

/// Toggles the lines to HQ and subordinates.
void cmdHierarchy_Click(Program& program);
