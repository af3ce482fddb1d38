#pragma once

#include "core/program.h"

/// Disables the buttons of all tools; a running tool then enables its own again. Neither looks at any flag,
/// and one `enable_all` undoes any number of `disable_all`.
void disable_all(Program& program);
void enable_all(Program& program);

/// Puts a panel where the unit info panel is, before all others.
void put_over_unit_info(Program& program, PictureBox& panel);

/// Shows a scratch line with both ends at the press.
void start_scratch_line(LineControl& line, const MapPress& press);

/// The line tool as its panel leaves it: flags cleared, buttons off and enabled, scratch lines hidden.
void end_line_modes(Program& program);
