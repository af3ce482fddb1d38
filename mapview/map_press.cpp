#include "mapview/map_press.h"

#include "core/numbers.h"
#include "mapview/selection.h"

bool group_is_selected(const Program& program) { return program.campaign.colSelectedUnits.count() > 1; }

Outcome press_with_group(Program& program, const MapPress& press) {
    if (press.button == right_button) {
        clear_selection(program);
        program.main.map_popup_shown = true;
    }
    return Outcome::done;
}

Outcome press_closes_panel(Program& program, const MapPress& press) {
    if (press.button == right_button) return Outcome::goes_on;
    hide_unit_info(program);
    if (press.button == left_button && program.campaign.colSelectedUnits.count() == 1)
        clear_selection(program);
    return Outcome::goes_on;
}

Outcome press_starts_pan(Program& program, const MapPress& press) {
    program.main.popup_x = to_int16(press.x);
    program.main.popup_y = to_int16(press.y);
    return Outcome::goes_on;
}

void stretch_rubber_lines(Program& program, const MapPress& press) {
    for (LineControl* line : {&program.main.linTempLine, &program.main.linTempLine2}) {
        if (!line->visible) continue;
        line->x2 = press.x;
        line->y2 = press.y;
    }
}

bool element_is_transferred(const Program& program) { return program.main.transferring_fe; }

Outcome press_aborts_transfer(Program& program, const MapPress& /*press*/) {
    const Answer answer =
        program.platform.message({"Abort transfering force element?", Icon::question, Buttons::yes_no});
    if (answer != Answer::yes) return Outcome::done;
    program.main.transferring_fe = false;
    program.main.cmdTransferFE.enabled = false;
    return Outcome::done;
}
