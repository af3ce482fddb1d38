#include "program/menus.h"

#include "core/hierarchy.h"
#include "mapview/frmDisplay.h"
#include "mapview/move_unit.h"
#include "mapview/overview.h"
#include "mapview/unit_states.h"
#include "operations/range_tools.h"
#include "persistence/main_file_reader.h"
#include "persistence/main_file_writer.h"
#include "persistence/unit_list.h"
#include "program/about.h"
#include "program/exit.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

using Main = frmMain;

constexpr std::array<MenuRow, 31> rows{{
    {"&File", "Save selected ...", "mnuSaveSelected", &Main::mnuSaveSelected, mnuSaveSelected_Click},
    {"&File", "Save main...", "mnuSave", &Main::mnuSave, mnuSave_Click},
    {"&File", "Load main...", "mnuLoad", &Main::mnuLoad, mnuLoad_Click},
    {"&File", "Save units", "mnuSaveUnits", &Main::mnuSaveUnits, nullptr},
    {"mnuSaveUnits", "Save Allied units...", "mnuSaveAlliedUnits", &Main::mnuSaveAlliedUnits,
     mnuSaveAlliedUnits_Click},
    {"mnuSaveUnits", "Save Axis units...", "mnuSaveAxisUnits", &Main::mnuSaveAxisUnits,
     mnuSaveAxisUnits_Click},
    {"mnuSaveUnits", "Save all units", "mnuSaveAllUnits", &Main::mnuSaveAllUnits, mnuSaveAllUnits_Click},
    {"mnuSaveUnits", "Save selected units...", "mnuSaveSelectedUnits", &Main::mnuSaveSelectedUnits,
     mnuSaveSelectedUnits_Click},
    {"&File", "Load units...", "mnuLoadUnits", &Main::mnuLoadUnits, mnuLoadUnits_Click},
    {"&File", "Exit", "mnuExit", &Main::mnuExit, mnuExit_Click},
    {"&Edit", "Delete everything...", "mnuDeleteAll", &Main::mnuDeleteAll, nullptr},
    {"&Edit", "Delete selected units...", "mnuDeleteSelected", &Main::mnuDeleteSelected, nullptr},
    {"&View", "Set display options...", "mnuSetDisplay", &Main::mnuSetDisplay, mnuSetDisplay_Click},
    {"&View", "Order Of Battle...", "mnuViewCompleteOOB", &Main::mnuViewCompleteOOB, nullptr},
    {"&View", "Unit overall state", "mnuUnitState", &Main::mnuUnitState, mnuUnitState_Click},
    {"&View", "Units", "mnuShowHideUnits", &Main::mnuShowHideUnits, mnuShowHideUnits_Click},
    {"&Tools", "Range circles", "mnuRangeCircles", &Main::mnuRangeCircles, mnuRangeCircles_Click},
    {"&Tools", "Check && repair HQ/Subordiante links", "mnuCheckHQSub", &Main::mnuCheckHQSub,
     mnuCheckHQSub_Click},
    {"&Tools", "Change unit ID", "mnuChangeUnitID", &Main::mnuChangeUnitID, mnuChangeUnitID_Click},
    {"&Tools", "Options", "mnuOpt", &Main::mnuOpt, nullptr},
    {"mnuOpt", "Leave AOO in place when moving units", "mnuLeaveAOO", &Main::mnuLeaveAOO, mnuLeaveAOO_Click},
    {"&Reports", "List all units...", "mnuListUnits", &Main::mnuListUnits, nullptr},
    {"&Help", "About Tolvane II", "mnuAboutTolvaneII", &Main::mnuAboutTolvaneII, mnuAboutTolvaneII_Click},
    {"&Help", "About the map", "mnuAboutMap", &Main::mnuAboutMap, mnuAboutMap_Click},
    {mnuUnitPopup, "Delete...", "mnuUP_delete", &Main::mnuUP_delete, nullptr},
    {mnuUnitPopup, "Edit unit", "mnuUP_edit", &Main::mnuUP_edit, nullptr},
    {mnuUnitPopup, "Delete all...", "mnuUP_delete_all", &Main::mnuUP_delete_all, nullptr},
    {mnuUnitPopup, "Move to...", "mnuUP_moveto", &Main::mnuUP_moveto, mnuUP_moveto_Click},
    {mnuOverviewPopup, "Show firefans", "mnuViewFFoverview", &Main::mnuViewFFoverview,
     mnuViewFFoverview_Click},
    {mnuOverviewPopup, "Show lines", "mnuOVPU_showlines", &Main::mnuOVPU_showlines, mnuOVPU_showlines_Click},
    {mnuOverviewPopup, "Show units", "mnuOVPU_show_units", &Main::mnuOVPU_show_units,
     mnuOVPU_show_units_Click},
}};

} // namespace

std::span<const MenuRow> menu_rows() { return rows; }

bool opens_submenu(const MenuRow& row) {
    return std::any_of(rows.begin(), rows.end(),
                       [&](const MenuRow& other) { return std::string_view(other.parent) == row.control; });
}
