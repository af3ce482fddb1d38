#include "program/exit.h"

#include "core/trap.h"

#include <array>

namespace {

constexpr std::array<const char*, 21> secondary_windows{"frmLabel",
                                                        "frmMapLegend",
                                                        "frmStart",
                                                        "frmTotalOOB",
                                                        "frmAboutTolvaneII",
                                                        "frmAboutMap",
                                                        "frmCreateUnits",
                                                        "frmEditUnit",
                                                        "frmDisplay",
                                                        "frmSetDateTime",
                                                        "frmEnterCoord",
                                                        "frmEditFE",
                                                        "frmFullscreenOverview",
                                                        "frmSaveMapInfo",
                                                        "frmWaypointdata",
                                                        "frmEditWaypoint",
                                                        "frmEditGmPlayers",
                                                        "frmFireMissions",
                                                        "frmTownsData",
                                                        "frmEditTown",
                                                        "frmListAllUnits"};

void release_collections(Campaign& campaign) {
    campaign.colLabels.drop();
    campaign.colLines.drop();
    campaign.colUnitTypes.drop();
    campaign.colUnits.drop();
    campaign.colForceElements.drop();
    campaign.colSelectedUnits.drop();
    campaign.colShapes.drop();
    campaign.colRussianPlayers.drop();
    campaign.colGermanPlayers.drop();
    campaign.colGameMasters.drop();
    campaign.colPathPoints.drop();
    campaign.colCirclePoints.drop();
    campaign.colPolygons.drop();
    campaign.colFireMissions.drop();
    campaign.colTowns.drop();
}

} // namespace

void mnuExit_Click(Program& program) {
    const int number = failure_of([&] {
        release_collections(program.campaign);
        static_cast<ActiveRecords&>(program.campaign) = {};
        for (const char* window : secondary_windows) program.unload(window);
        program.platform.unload_main_window();
    });
    if (number == 0) return;
    program.platform.message(
        {"Error " + std::to_string(number) + " when exiting.\nTrying to force the program to end.",
         Icon::warning});
    program.platform.end_at_once();
}

void Form_QueryUnload(Program& program, UnloadMode mode) {
    if (mode != UnloadMode::by_program) mnuExit_Click(program);
}
