#pragma once

class QKeyEvent;

/// The key code of the rules for a key of the window system, 0 for a key that means nothing there. A keypad
/// key counts by what it does: with Num Lock off its arrows are arrows.
int key_code(const QKeyEvent& event);
