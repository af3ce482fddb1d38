#pragma once

#include "core/hierarchy.h"
#include "core/program.h"

/// Whether a unit that was just read may enter the campaign. When its ID is present the user decides: Yes
/// gives all units present new IDs, No drops the unit.
inline bool unit_may_enter(Program& program, const oUnits& unit) {
    const auto present = program.campaign.colUnits->find(unit.ID);
    if (!present) return true;
    const Answer answer = program.platform.message(
        {"A unit with the same unique ID allready exist (unit " + present->name +
             ").\nDo you want to load the new unit? If so, all existing units will be\n"
             "assigned a new unique ID number, and you will not get this question\n"
             "again while loading this file.",
         Icon::question, Buttons::yes_no});
    if (answer != Answer::yes) return false;
    assign_new_ids(program);
    return true;
}
