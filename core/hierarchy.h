#pragma once

#include "core/program.h"

/// Brings the two directions of the HQ links in step: a unit's `parent_ID` and its HQ's `children`. Tells how
/// many errors it fixed, except that dropping a reference to a unit that is gone is silent and not counted.
/// Has a trap of its own.
void check_hierarchy(Program& program);

/// Gives every unit a new `ID` and keeps links and marker tags in step. The selection's keys, the overview
/// dots' tags and the fire missions stay. Has a trap of its own; after a failure the units not yet renumbered
/// are gone from `colUnits`.
void assign_new_ids(Program& program);

/// Menu: check the links.
void mnuCheckHQSub_Click(Program& program);
/// Menu: check the links, then renumber.
void mnuChangeUnitID_Click(Program& program);
