#pragma once

#include "core/program.h"

/// The artillery pieces of all units as they now are. Of a unit with an element that the catalogue lacks they
/// are those before it, and the failure says so.
const Artillery& artillery(Program& program);

/// Those of one unit.
Artillery artillery_of(const Program& program, const oUnits& unit);
