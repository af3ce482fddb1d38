#pragma once

#include "core/program.h"

/// Asks for a grid reference, brings it to the middle of the window and lets a marker blink there.
void cmdFindCoord_Click(Program& program);
/// One blink of the find marker; it goes away by itself after the seventh.
void tmrTimer_Timer(Program& program);
