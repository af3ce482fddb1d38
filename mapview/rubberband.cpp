#include "mapview/rubberband.h"

#include "core/numbers.h"
#include "mapview/selection.h"
#include "mapview/unit_info.h"

#include <algorithm>
#include <cmath>

void start_band(Program& program, ShapeControl& band, double x, double y) {
    program.main.rubberband_x = to_int16(x);
    program.main.rubberband_y = to_int16(y);
    band.left = x;
    band.top = y;
    band.width = 0;
    band.height = 0;
    band.visible = true;
}

void stretch_band(const Program& program, ShapeControl& band, double x, double y) {
    const double from_x = program.main.rubberband_x;
    const double from_y = program.main.rubberband_y;
    band.left = std::min(from_x, x);
    band.top = std::min(from_y, y);
    band.width = std::abs(x - from_x);
    band.height = std::abs(y - from_y);
}

bool band_may_grow(const Program& program, const ShapeControl& band) {
    const frmMain& main = program.main;
    const auto label = program.forms.find("frmLabel");
    const bool writing_label = label != program.forms.end() && label->second->visible;
    return band.visible && !main.drawing_lines && !main.checking_path_range && !main.checking_range &&
           !main.moving_line_point && !main.deleting_line_point && !main.deleting_line && !writing_label;
}

Outcome press_starts_band(Program& program, const MapPress& press) {
    start_band(program, program.main.shpRubberband, press.x, press.y);
    return Outcome::goes_on;
}

void finish_band(Program& program) {
    frmMain& main = program.main;
    if (!main.shpRubberband.visible) return;
    const int last = select_in_band(program, main.shpRubberband);
    if (program.campaign.colSelectedUnits.count() == 1) show_unit_info(program, main.imgUnit(last).tag);
    main.shpRubberband.visible = false;
}
