#include "mapview/scrolling.h"

#include "core/numbers.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double edge_step = 10;
constexpr double near_edge = 5;
constexpr double far_edge_right = 10;
constexpr double far_edge_bottom = 25;

/// The value within the bar's range; a map smaller than its window stays at the minimum.
double clamped(const ScrollBar& bar, double value) {
    return std::max<double>(bar.min, std::min<double>(bar.max, value));
}

/// Where a bar must stand so that the map pixel is in the middle of the window.
double centering_value(const ScrollBar& bar, double pixel, double window, double map) {
    if (window / 2 > pixel) return 0;
    if (map - window / 2 < pixel) return bar.max;
    return to_int16(pixel - window / 2);
}

} // namespace

void scrlHMap_Change(Program& program) {
    frmMain& main = program.main;
    const PictureBox& overview = main.picOverviewmap;
    main.picMap.left = -main.scrlHMap.value;
    main.picHcoord.left = main.picMap.left;
    ShapeControl& box = main.shpOverviewbox;
    box.left = round_half_even(std::abs(main.picMap.left / (main.picMap.width / overview.width)));
    box.left = std::min(box.left, overview.scale_width() - box.width);
}

void scrlVMap_Change(Program& program) {
    frmMain& main = program.main;
    const PictureBox& overview = main.picOverviewmap;
    main.picMap.top = -main.scrlVMap.value;
    main.picVcoord.top = main.picMap.top;
    ShapeControl& box = main.shpOverviewbox;
    box.top = -(main.picMap.top / (main.picMap.height / overview.height)) - 3;
    box.top = std::min(box.top, overview.scale_height() - box.height);
    box.top = std::max(box.top, 0.0);
}

void scrlHMap_Scroll(Program& program) { scrlHMap_Change(program); }
void scrlVMap_Scroll(Program& program) { scrlVMap_Change(program); }

void scroll_horizontally_to(Program& program, double value) {
    ScrollBar& bar = program.main.scrlHMap;
    const std::int16_t wanted = to_int16(clamped(bar, value));
    if (wanted == bar.value) return;
    bar.value = wanted;
    scrlHMap_Change(program);
}

void scroll_vertically_to(Program& program, double value) {
    ScrollBar& bar = program.main.scrlVMap;
    const std::int16_t wanted = to_int16(clamped(bar, value));
    if (wanted == bar.value) return;
    bar.value = wanted;
    scrlVMap_Change(program);
}

void edge_scroll(Program& program, double x, double y) {
    frmMain& main = program.main;
    if (!main.edge_scrolling) return;
    const ScrollBar& h = main.scrlHMap;
    const ScrollBar& v = main.scrlVMap;
    const double vx = x - h.value;
    const double vy = y - v.value;
    if (vx <= near_edge && h.value > h.min + edge_step) {
        scroll_horizontally_to(program, h.value - edge_step);
        main.picMap.Refresh();
    } else if (vx >= main.picMapwindow.width - far_edge_right && h.value < h.max - edge_step) {
        scroll_horizontally_to(program, h.value + edge_step);
        main.picMap.Refresh();
    }
    if (vy <= near_edge && v.value > v.min + edge_step) {
        scroll_vertically_to(program, v.value - edge_step);
        main.picMap.Refresh();
    } else if (vy >= main.picMapwindow.height - far_edge_bottom && v.value < v.max - edge_step) {
        scroll_vertically_to(program, v.value + edge_step);
        main.picMap.Refresh();
    }
}

void cmdEdgescroll_Click(Program& program) {
    program.main.edge_scrolling = !program.main.edge_scrolling;
    program.main.cmdEdgescroll.show_on(program.main.edge_scrolling);
}

void pan_map(Program& program, double x, double y) {
    frmMain& main = program.main;
    const double dx = to_int16(main.popup_x - x);
    const double dy = to_int16(main.popup_y - y);
    scroll_horizontally_to(program, main.scrlHMap.value + dx);
    scroll_vertically_to(program, main.scrlVMap.value + dy);
}

void center_map_on(Program& program, double x, double y) {
    const frmMain& main = program.main;
    const PictureBox& window = main.picMapwindow;
    scroll_horizontally_to(program, centering_value(main.scrlHMap, x, window.width, main.picMap.width));
    scroll_vertically_to(program, centering_value(main.scrlVMap, y, window.height, main.picMap.height));
}
