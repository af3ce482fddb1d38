#include "program/unit_info_buttons.h"

#include "mapview/unit_info.h"
#include "operations/unit_tools.h"

#include <array>

namespace {

using Main = frmMain;

constexpr std::array<UnitInfoButton, 14> rows{{
    {"unit", "cmdEditUnit", "Edit unit", &Main::cmdEditUnit, nullptr},
    {"unit", "cmdHierarchy", "CoC", &Main::cmdHierarchy, cmdHierarchy_Click},
    {"unit", "cmdCopyUnit", "Copy unit", &Main::cmdCopyUnit, nullptr},
    {"unit", "cmdDeleteUnit", "Delete unit", &Main::cmdDeleteUnit, nullptr},
    {"elements", "cmdEditFE", "Edit f.e.", &Main::cmdEditFE, nullptr},
    {"elements", "cmdDeleteFE", "Delete f.e.", &Main::cmdDeleteFE, nullptr},
    {"elements", "cmdTransferFE", "Transfer f.e.", &Main::cmdTransferFE, nullptr},
    {"elements", "cmdSetFirefan", "Set firefan", &Main::cmdSetFirefan, cmdSetFirefan_Click},
    {"map", "cmdUnitWaypoints", "Add waypt.", &Main::cmdUnitWaypoints, nullptr},
    {"map", "cmdEditWaypt", "Edit wpt.", &Main::cmdEditWaypt, nullptr},
    {"map", "cmdMoveWaypt", "Move wpt.", &Main::cmdMoveWaypt, nullptr},
    {"map", "cmdClearWaypt", "Clear wpt.", &Main::cmdClearWaypt, nullptr},
    {"map", "cmdDrawAOO", "Draw aoo", &Main::cmdDrawAOO, cmdDrawAOO_Click},
    {"map", "cmdDelAOO", "Delete aoo", &Main::cmdDelAOO, cmdDelAOO_Click},
}};

} // namespace

std::span<const UnitInfoButton> unit_info_buttons() { return rows; }
