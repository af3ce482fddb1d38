#pragma once

#include "core/program.h"

#include <cstdint>
#include <string>

/// One kilometre is 150 map pixels; one unit of a grid reference (a hundredth of a kilometre) is 1.5. The top
/// row of the grid is cut: its horizontal lines lie at 150 k + 102.
inline constexpr int pixels_per_km = 150;
inline constexpr int grid_offset = 48;

/// The grid reference of a map pixel, as "EE.ff" and "NN.ff". Adds 48 to `y` in the caller's variable: who
/// must keep its value hands in a copy. Fails with 6 when that leaves Int16.
void pixel_to_grid(const Program& program, std::int16_t& x, std::int16_t& y, std::string& east,
                   std::string& north);

/// The map pixel of a grid reference of four digits each, "EEff" and "NNff". Fails with 13 on other texts,
/// with 6 outside Int16.
void grid_to_pixel(const Program& program, std::int16_t& x, std::int16_t& y, const std::string& east,
                   const std::string& north);

/// A two-digit text of a ruler or reference number: formatted "00", its last two characters.
std::string last_two_digits(double number);
