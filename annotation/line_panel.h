#pragma once

#include "core/program.h"

// The panel of the line tool.

/// Opens or closes the panel.
void cmdDrawLines_Click(Program& program);
void cmdExitDrawLine_Click(Program& program);

/// Turns drawing on or off.
void cmdStartDrawLines_Click(Program& program);
/// Turn a way of editing on or off; while one is on its siblings are disabled.
void cmdDeleteLine_Click(Program& program);
void cmdMovePoint_Click(Program& program);
void cmdDeletePoint_Click(Program& program);
void cmdInsertPointLine_Click(Program& program);
/// Asks, then removes all lines.
void cmdDeleteAllLines_Click(Program& program);

// Settings. Each ends the line in hand.
void cboBoundrySize_Change(Program& program);
void chkArrow_Click(Program& program);
void chkBoundry_Click(Program& program);
void optLineStyle_Click(Program& program, int index);
void optPolyline_Click(Program& program);
void optSingleLine_Click(Program& program);
void scrlLineWidth_Change(Program& program);
void cmdLineColor_Click(Program& program);

/// Takes the settings over into the sample lines and turns drawing off.
void update_line_sample(Program& program);
