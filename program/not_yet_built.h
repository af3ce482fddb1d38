#pragma once

#include <array>

/// The menu entries and buttons whose command does not exist yet: they are shown disabled. This list must
/// shrink to nothing.
inline constexpr std::array<const char*, 28> not_yet_built{
    // The report of units
    "mnuListUnits",
    // Units and their force elements
    "mnuDeleteAll", "mnuDeleteSelected", "mnuUP_delete", "mnuUP_edit", "mnuUP_delete_all",
    "mnuViewCompleteOOB", "cmdCreateUnits", "cmdEditUnit", "cmdCopyUnit", "cmdDeleteUnit", "cmdEditFE",
    "cmdDeleteFE", "cmdTransferFE",
    // Pictures
    "cmdShowFullscreen", "cmdSavemap", "cmdSnapshot",
    // Drawing on the map
    "cmdLabel", "cmdDrawPolygon", "cmdCreateShapes",
    // Operations, rosters and gazetteer
    "cmdUnitWaypoints", "cmdEditWaypt", "cmdMoveWaypt", "cmdClearWaypt", "cmdFireMissions", "cmdSetDateTime",
    "cmdEditGMPlayers", "cmdTownsData"};
