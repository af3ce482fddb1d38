#include "mapview/layout.h"

#include "core/numbers.h"
#include "core/trap.h"
#include "mapview/scrolling.h"

namespace {

// Room for scroll bar, window frame, caption and menu.
constexpr double beside_map = 30;
constexpr double below_map = 66;
constexpr double above_status_bar = 8;
constexpr double bar_gap = 2;
// The info panel ends level with the map window, whose top is at 41.
constexpr double info_panel_end = 41;

/// Range and steps of a scroll bar over `whole` pixels seen through `inner` of them.
void set_range(ScrollBar& bar, double whole, double inner) {
    bar.min = 0;
    bar.max = to_int16(whole - inner);
    bar.large_change = to_int16(inner / 2);
    bar.small_change = to_int16(inner / 12);
}

void lay_out(frmMain& main) {
    PictureBox& window = main.picMapwindow;
    window.width = main.width - window.left - beside_map;
    window.height = main.height - window.top - below_map - main.sbarMap.height - above_status_bar;

    main.scrlVMap.left = window.left + window.width + bar_gap;
    main.scrlVMap.top = window.top;
    main.scrlVMap.height = window.height;
    set_range(main.scrlVMap, main.picMap.height, window.scale_height());

    main.scrlHMap.left = window.left;
    main.scrlHMap.width = window.width;
    main.scrlHMap.top = window.top + window.height + bar_gap;
    set_range(main.scrlHMap, main.picMap.width, window.scale_width());

    main.picUnitInfo.height = main.scrlVMap.height - main.picUnitInfo.top + info_panel_end;
    main.picVcoordContainer.height = window.height;
    main.picHcoordContainer.width = window.width;
}

} // namespace

void size_overview_box(Program& program) {
    frmMain& main = program.main;
    const PictureBox& overview = main.picOverviewmap;
    main.shpOverviewbox.width = whole_part(overview.width / main.picMap.width * main.picMapwindow.width) + 1;
    main.shpOverviewbox.height =
        whole_part(overview.height / main.picMap.height * main.picMapwindow.height) + 3;
}

void size_rulers(Program& program) {
    frmMain& main = program.main;
    main.picHcoord.width = main.picMap.width;
    main.picHcoord.height = main.picHcoordContainer.height;
    main.picHcoord.left = 0;
    main.picHcoord.top = 5;
    main.picVcoord.height = main.picMap.height;
    main.picVcoord.width = main.picVcoordContainer.width;
    main.picVcoord.top = 0;
    main.picVcoord.left = 3;
}

void fit_main_window(Program& program) {
    trap(program, " when resizing the map window.", [&] {
        lay_out(program.main);
        size_overview_box(program);
        // A larger window may leave a bar beyond its new maximum.
        scroll_horizontally_to(program, program.main.scrlHMap.value);
        scroll_vertically_to(program, program.main.scrlVMap.value);
    });
}

void Form_Resize(Program& program, double width, double height, double scale_width) {
    program.main.scale_width = scale_width;
    if (scale_width == 0) return;
    program.main.width = width;
    program.main.height = height;
    fit_main_window(program);
}
