#pragma once

#include "core/program.h"

/// Key codes that the main window acts on.
namespace key {
inline constexpr int ctrl = 17;
inline constexpr int left = 37;
inline constexpr int up = 38;
inline constexpr int right = 39;
inline constexpr int down = 40;
inline constexpr int keypad_0 = 96; // keypad 1 to 9 follow
} // namespace key

/// Arrow and keypad keys scroll by 40 pixels; Ctrl hides the unit markers while it is down. Has a trap of its
/// own. The key goes on to the focused control in any case.
void Form_KeyDown(Program& program, int code);
/// Letting Ctrl go shows every unit marker, whatever hid it. So does losing the window's activation.
void Form_KeyUp(Program& program, int code);
