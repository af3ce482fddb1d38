#include "mapview/find_coordinate.h"

#include "core/trap.h"
#include "mapview/frmEnterCoord.h"
#include "mapview/scrolling.h"

namespace {

constexpr int last_blink = 6;

void show_find_marker(frmMain& main, double x, double y) {
    main.shpFindgrid.left = x - 16;
    main.shpFindgrid.top = y - 16;
    main.linFindgridx = {x - 24, y, x + 24, y, true, 1, 0x0000FF};
    main.linFindgridy = {x, y + 24, x, y - 24, true, 1, 0x0000FF};
    main.shpFindgrid.visible = true;
}

} // namespace

void cmdFindCoord_Click(Program& program) {
    trap(program, " when finding a coordinate.", [&] {
        Campaign& campaign = program.campaign;
        campaign.gCoordCancelled = false;
        program.form<frmEnterCoord>().show_modal();
        if (campaign.gCoordCancelled || campaign.gFindX == 0) return;
        center_map_on(program, campaign.gFindX, campaign.gFindY);
        show_find_marker(program.main, campaign.gFindX, campaign.gFindY);
        program.main.tmrTimer.enabled = campaign.gBlinkCount < last_blink;
    });
}

void tmrTimer_Timer(Program& program) {
    frmMain& main = program.main;
    main.shpFindgrid.visible = !main.shpFindgrid.visible;
    main.linFindgridx.visible = !main.linFindgridx.visible;
    main.linFindgridy.visible = !main.linFindgridy.visible;
    if (++program.campaign.gBlinkCount > last_blink) {
        main.tmrTimer.enabled = false;
        program.campaign.gBlinkCount = 0;
    }
}
