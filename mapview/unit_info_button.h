#pragma once

#include "core/program.h"

/// One button of the unit info panel; buttons of one group stand together.
struct UnitInfoButton {
    const char* group;
    const char* control;
    const char* caption;
    Button frmMain::*button;
    void (*click)(Program& program);
};
