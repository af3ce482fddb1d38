#pragma once

#include <array>

/// The menu entries and buttons whose command does not exist yet: they are shown disabled. This list must
/// shrink to nothing.
inline constexpr std::array<const char*, 36> not_yet_built{
    // Unit lists and report
    "mnuSaveAlliedUnits", "mnuSaveAxisUnits", "mnuSaveAllUnits", "mnuSaveSelectedUnits", "mnuLoadUnits",
    "mnuListUnits",
    // Units
    "mnuDeleteAll", "mnuDeleteSelected", "mnuUP_delete", "mnuUP_edit", "mnuUP_delete_all", "mnuUP_moveto",
    "mnuViewCompleteOOB", "cmdCreateUnits",
    // Display, overview, tray and pictures
    "mnuSetDisplay", "mnuUnitState", "mnuShowHideUnits", "mnuViewFFoverview", "mnuOVPU_showlines",
    "mnuOVPU_show_units", "cmdUnitTray", "cmdShowFullscreen", "cmdSavemap", "cmdSnapshot",
    // Drawing on the map
    "cmdLabel", "cmdDrawLines", "cmdDrawPolygon", "cmdCreateShapes",
    // Operations, rosters and gazetteer
    "mnuRangeCircles", "mnuLeaveAOO", "cmdFireMissions", "cmdRangecheck", "cmdPathRange", "cmdSetDateTime",
    "cmdEditGMPlayers", "cmdTownsData"};
