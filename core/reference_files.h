#pragma once

#include "core/program.h"

#include <string>

// The files below the program's `data` directory: catalogues, which are only read, rosters and gazetteer.
// Every reader has a trap of its own; after its message the step ends with what it has read so far.

/// Fills `colUnitTypes` with the marker pictures of both sides.
void load_unit_types(Program& program);
/// Fills `colForceElements`.
void load_force_elements(Program& program);
/// Fills the three rosters; a missing file is an empty roster, a repeated name counts once.
void load_user_data(Program& program);
/// Fills `colTowns` in the order of the file; a repeated ID counts once.
void load_towns(Program& program);

/// Rewrites the three roster files whole. Fails with 61, 57, 75 or 76.
void save_user_data(Program& program);
/// Rewrites the gazetteer whole. Fails with 61, 57, 75 or 76.
void save_towns(Program& program);

/// The echelon word that a marker picture's file name tells; empty when it holds none.
std::string echelon_of_file_name(const std::string& file_name);
