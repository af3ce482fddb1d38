#pragma once

#include "core/program.h"

/// Ends the program: lets go of the campaign, unloads every window, the main window last. Nothing asks about
/// unsaved work.
void mnuExit_Click(Program& program);

/// The main window is about to close. Unless the program itself unloads it the exit sequence runs.
enum class UnloadMode : std::uint8_t { close_box = 0, by_program = 1 };
void Form_QueryUnload(Program& program, UnloadMode mode);
