#pragma once

#include "core/program.h"

/// The artillery pieces of all units as they now are: good, with its pointers, until the list of units, what
/// one of them holds or the catalogue changes. Of a unit with an element that the catalogue lacks they are
/// those before it, and `failure` says so.
const ArtilleryPieces& all_artillery_pieces(Program& program);

/// Those of one unit.
ArtilleryPieces artillery_pieces_of(const Program& program, const oUnits& unit);
