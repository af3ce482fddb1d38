#include "mapview/overview.h"

#include "core/numbers.h"
#include "core/trap.h"
#include "mapview/frmDisplay.h"
#include "mapview/grid_reference.h"
#include "mapview/scrolling.h"

#include <algorithm>

namespace {

Point clamped_to_overview(const PictureBox& overview, const MapPress& press) {
    return {std::clamp(press.x, 0.0, overview.scale_width()),
            std::clamp(press.y, 0.0, overview.scale_height())};
}

void show_coordinates(Program& program, Point at) {
    const frmMain& main = program.main;
    std::int16_t x = to_int16(main.picMap.width / main.picOverviewmap.scale_width() * at.x);
    std::int16_t y = to_int16(main.picMap.height / main.picOverviewmap.scale_height() * at.y);
    std::string east;
    std::string north;
    pixel_to_grid(program, x, y, east, north);
    program.main.sbarMap.panels[0] = "Eastern: " + east + " - Northern: " + north;
}

double within(double value, double half, double size) { return std::max(std::min(value, size - half), half); }

} // namespace

void center_map_on_overview(Program& program, double x, double y) {
    const frmMain& main = program.main;
    const PictureBox& overview = main.picOverviewmap;
    const ShapeControl& box = main.shpOverviewbox;
    // One whole factor, made of the widths, for both axes: the far corner is not quite reached.
    const int factor = to_int16(main.picMap.width / overview.width);
    const double half_width = to_int16(box.width / 2);
    const double half_height = to_int16(box.height / 2);
    x = within(x, half_width, overview.scale_width());
    y = within(y, half_height, overview.scale_height());
    scroll_horizontally_to(program, to_int16((x - box.width / 2) * factor));
    scroll_vertically_to(program, to_int16((y - box.height / 2) * factor));
}

void picOverviewmap_MouseDown(Program& program, const MapPress& press) {
    if (press.button == right_button) program.platform.popup_menu(mnuOverviewPopup);
}

void picOverviewmap_MouseMove(Program& program, const MapPress& press) {
    trap(program, " when moving the mouse.", [&] {
        const Point at = clamped_to_overview(program.main.picOverviewmap, press);
        show_coordinates(program, at);
        if (press.button == left_button) center_map_on_overview(program, at.x, at.y);
    });
}

void picOverviewmap_MouseUp(Program& program, const MapPress& press) {
    trap(program, " when releasing a mouse button.", [&] {
        const Point at = clamped_to_overview(program.main.picOverviewmap, press);
        if (press.button == left_button) center_map_on_overview(program, at.x, at.y);
    });
}

void mnuViewFFoverview_Click(Program& program) {
    bool& shown = program.campaign.gDispOmFirefans;
    shown = !shown;
    program.main.mnuViewFFoverview.checked = shown;
    program.form<frmDisplay>().chkOmFirefans.value = shown;
    program.main.picMap.Refresh();
}

void mnuOVPU_showlines_Click(Program& program) {
    MenuEntry& entry = program.main.mnuOVPU_showlines;
    entry.checked = !entry.checked;
    program.main.picMap.Refresh();
}

void mnuOVPU_show_units_Click(Program& program) {
    frmMain& main = program.main;
    main.mnuOVPU_show_units.checked = !main.mnuOVPU_show_units.checked;
    for (int i = 1; i < program.campaign.gNextUnitIndex; ++i)
        if (main.shpUnit(i).tag != deleted_tag) main.shpUnit(i).visible = main.mnuOVPU_show_units.checked;
}
