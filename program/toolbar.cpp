#include "program/toolbar.h"

#include "annotation/line_panel.h"
#include "mapview/find_coordinate.h"
#include "mapview/grid.h"
#include "mapview/scrolling.h"
#include "mapview/unit_tray.h"
#include "operations/range_tools.h"
#include "persistence/main_file_reader.h"
#include "persistence/main_file_writer.h"
#include "program/about.h"

#include <array>

namespace {

using Main = frmMain;

constexpr std::array<ToolbarRow, 21> rows{{
    {"cmdLoad", "Load main file", &Main::cmdLoad, cmdLoad_Click},
    {"cmdSave", "Save main file", &Main::cmdSave, cmdSave_Click},
    {"cmdCreateUnits", "Create new units", &Main::cmdCreateUnits, nullptr},
    {"cmdLabel", "Creat a map label.", &Main::cmdLabel, nullptr},
    {"cmdDrawLines", "Draw lines on the map", &Main::cmdDrawLines, cmdDrawLines_Click},
    {"cmdDrawPolygon", "Draw map areas (polygon)", &Main::cmdDrawPolygon, nullptr},
    {"cmdCreateShapes", "Place a shape on the map.", &Main::cmdCreateShapes, nullptr},
    {"cmdFireMissions", "Edit firemissions", &Main::cmdFireMissions, nullptr},
    {"cmdFindCoord", "Find a location on the map.", &Main::cmdFindCoord, cmdFindCoord_Click},
    {"cmdTownsData", "Locate towns and edit town data", &Main::cmdTownsData, nullptr},
    {"cmdRangecheck", "Find the range between two points.", &Main::cmdRangecheck, cmdRangecheck_Click},
    {"cmdPathRange", "Find the accumulated range for a path.", &Main::cmdPathRange, cmdPathRange_Click},
    {"cmdGrid", "Show/hide the map grid.", &Main::cmdGrid, cmdGrid_Click},
    {"cmdEdgescroll", "Turn on/off edge-scrolling.", &Main::cmdEdgescroll, cmdEdgescroll_Click},
    {"cmdSetDateTime", "Change date/time.", &Main::cmdSetDateTime, nullptr},
    {"cmdEditGMPlayers", "Edit user data", &Main::cmdEditGMPlayers, nullptr},
    {"cmdUnitTray", "Temporary unit tray.", &Main::cmdUnitTray, cmdUnitTray_Click},
    {"cmdShowFullscreen", "Display full-screen overview map.", &Main::cmdShowFullscreen, nullptr},
    {"cmdSavemap", "Save map to file.", &Main::cmdSavemap, nullptr},
    {"cmdSnapshot", "Take a snapshot of the current visible part of the map", &Main::cmdSnapshot, nullptr},
    {"cmdLegend", "Show map legend.", &Main::cmdLegend, cmdLegend_Click},
}};

} // namespace

std::span<const ToolbarRow> toolbar_rows() { return rows; }
