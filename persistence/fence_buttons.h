#pragma once

#include "core/program.h"

/// Saving and loading give back four buttons that a tool may have fenced off, even when the file dialog is
/// then cancelled.
inline void enable_fenced_buttons(Program& program) {
    program.main.cmdCreateShapes.enabled = true;
    program.main.cmdDrawLines.enabled = true;
    program.main.cmdCreateUnits.enabled = true;
    program.main.cmdLabel.enabled = true;
}
