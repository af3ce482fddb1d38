#pragma once

#include "core/program.h"

// The rows of the unit info panel's two lists. A row of one unit or element ends in its key, out of sight.

/// Levels below a unit that are listed.
inline constexpr int listed_levels = 10;

/// Nationality, name and type.
std::string full_name(const oUnits& unit);

/// What an element is, how many, its experience, ammunition and losses. Fails with 5 when the catalogue lacks
/// it.
std::string element_row(const Program& program, const oUnitForceElements& element);
/// The key at the end of a row, where the list of a unit's own elements has put it.
std::string element_key(const std::string& row);

/// Name and type of a subordinate, indented by its depth below the unit, 1 to `listed_levels`, and its key.
std::string subordinate_row(const oUnits& unit, int depth);
/// The key behind the first mark in a subordinate's row: a mark in the name hides the key.
std::string subordinate_key(const std::string& row);
