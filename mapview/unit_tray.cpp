#include "mapview/unit_tray.h"

#include "core/trap.h"
#include "mapview/rubberband.h"
#include "mapview/selection.h"
#include "mapview/tool_modes.h"
#include "mapview/unit_info.h"

void cmdUnitTray_Click(Program& program) {
    frmMain& main = program.main;
    if (main.picUnitTray.visible) {
        cmdUTClose_Click(program);
        return;
    }
    main.cmdUnitTray.show_on(true);
    main.picPlaceShapes.visible = false;
    main.picDrawLines.visible = false;
    end_line_modes(program);
    main.placing_shape = false;
    put_over_unit_info(program, main.picUnitTray);
}

void cmdUTClose_Click(Program& program) {
    program.main.picUnitTray.visible = false;
    program.main.shpTrayRubberband.visible = false; // the release of its press is lost
    program.main.cmdUnitTray.show_on(false);
}

void picUnitTray_MouseDown(Program& program, const MapPress& press) {
    trap(program, " when pressing a mouse button on the map.", [&] {
        const auto& selected = program.campaign.colSelectedUnits;
        if (selected.count() > 1) {
            if (press.button == right_button) clear_selection(program);
            return;
        }
        if (press.button != left_button) return;
        if (selected.count() == 1) clear_selection(program);
        start_band(program, program.main.shpTrayRubberband, press.x, press.y);
    });
}

void picUnitTray_MouseMove(Program& program, const MapPress& press) {
    ShapeControl& band = program.main.shpTrayRubberband;
    if (press.button == left_button && band_may_grow(program, band))
        stretch_band(program, band, press.x, press.y);
}

void picUnitTray_MouseUp(Program& program, const MapPress& /*press*/) {
    trap(program, " when releasing a mouse button.", [&] {
        frmMain& main = program.main;
        if (main.shpTrayRubberband.visible) {
            main.shpTrayRubberband.visible = false;
            select_in_band(program, main.shpTrayRubberband);
            // The panel shows the unit of the highest index there is, whichever was found.
            if (program.campaign.colSelectedUnits.count() == 1)
                show_unit_info(program, main.imgUnit(program.campaign.gNextUnitIndex - 1).tag);
        }
        set_menus_by_count(program);
    });
}
