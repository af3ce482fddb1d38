#pragma once

#include "core/program.h"

/// Writes the campaign clock to the second panel of the status bar. The year there is always 1942.
inline void show_clock(Program& program) {
    const Campaign& campaign = program.campaign;
    program.main.sbarMap.panels[1] = "Current date/time: " + campaign.gDateMonth + " " + campaign.gDateDay +
                                     ", 1942 - " + campaign.gDateHour + ":" + campaign.gDateMinute;
}
