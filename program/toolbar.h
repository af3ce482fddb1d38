#pragma once

#include "core/program.h"

#include <span>

/// One button of the toolbar, in order. Its picture is named like its control.
struct ToolbarRow {
    const char* control;
    const char* tip;
    Button frmMain::*button;
    void (*click)(Program& program);
};

std::span<const ToolbarRow> toolbar_rows();
