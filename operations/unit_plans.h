#pragma once

#include "core/program.h"

#include <cstddef>

/// How far left of a waypoint its texts begin, in map pixels.
inline constexpr double left_of_waypoint_texts = 60;

/// An area of operation with fewer is none.
inline constexpr std::size_t corners_of_an_area = 3;

/// The routes and areas of all units as they now are, in the order of the units: good, with its pointers,
/// until the list of units, the place of one, a waypoint or a corner changes.
const UnitPlans& unit_plans(Program& program);
