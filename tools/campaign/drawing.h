#pragma once

#include "core/program.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

// What is drawn on the map of a sample campaign. Places are kilometres of the grid.

using Kilometres = std::pair<double, double>; // east, north

/// A line; with an echelon a boundary of that size.
void line(Program& program, std::int32_t colour, int style, int width, const std::string& boundary,
          const std::vector<Kilometres>& points);

/// A half transparent polygon with its name.
void objective(Program& program, const std::string& name, std::int32_t colour,
               const std::vector<Kilometres>& points);

void label(Program& program, const std::string& text, Kilometres at, int size, std::int32_t colour);

/// A shape of this kind and size in pixels with its caption.
void shape(Program& program, const std::string& notes, Kilometres at, int kind, int width, int height,
           std::int32_t fill);

void mission(Program& program, const std::string& notes, int mission_class, int type, int pattern,
             Kilometres at, const std::string& affiliation);

/// A march of the named unit along the points at this speed in km/h, from the campaign's first hour on.
void march(Program& program, const std::string& name, double speed, const std::vector<Kilometres>& points,
           const std::string& notes);

/// An area of operations around the named unit: a rectangle of kilometres, turned to the unit's front.
void area(Program& program, const std::string& name, double width, double depth, double facing);
