#pragma once

#include "core/program.h"

/// Whether a unit still lies in the tray, where its position is none of the map; the user is told.
inline bool units_left_in_tray(Program& program) {
    const ControlArray<UnitMarker>& markers = program.main.imgUnit;
    for (int i = 1; i < program.campaign.gNextUnitIndex; ++i) {
        if (!markers.has(i) || markers(i).container != Container::tray || markers(i).tag == deleted_tag)
            continue;
        program.platform.message(
            {"You have units left in the unit tray. Please move them to the map first!", Icon::warning});
        return true;
    }
    return false;
}
