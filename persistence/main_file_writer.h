#pragma once

#include "core/program.h"

/// Saves the campaign to a main campaign file that the user chooses. While `saving_selected` is on, sections
/// whose save option is off are written as empty. Has a trap of its own.
void cmdSave_Click(Program& program);
/// Menu: save everything.
void mnuSave_Click(Program& program);
/// Menu: asks what to save, then saves that.
void mnuSaveSelected_Click(Program& program);
