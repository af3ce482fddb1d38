#pragma once

#include "core/program.h"

// Unit lists: files that carry units alone, with all they own, from one campaign to another.

void mnuSaveAlliedUnits_Click(Program& program);
void mnuSaveAxisUnits_Click(Program& program);
void mnuSaveAllUnits_Click(Program& program);
/// Refuses a selection that is no whole branch of the hierarchy.
void mnuSaveSelectedUnits_Click(Program& program);

/// Adds the units of a list to the campaign.
void mnuLoadUnits_Click(Program& program);
