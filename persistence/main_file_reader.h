#pragma once

#include "core/program.h"

/// Loads a main campaign file of any version that the user chooses and merges it into the campaign. What was
/// read before a failure stays. Has a trap of its own.
void cmdLoad_Click(Program& program);
/// Menu: the same.
void mnuLoad_Click(Program& program);
