#include "operations/unit_tools.h"

#include "core/numbers.h"
#include "core/trap.h"
#include "core/unit_place.h"
#include "mapview/tool_modes.h"
#include "operations/fire_fans.h"

namespace {

oUnits& active_unit(const Program& program) {
    if (!program.campaign.curUnit) throw Failure{failure::no_object};
    return *program.campaign.curUnit;
}

void add_area_point(Program& program, const MapPress& press) {
    oUnits& unit = active_unit(program);
    LineControl& rubber = program.main.linTempLine;
    if (!rubber.visible) unit.area_of_opeartion.drop(); // the first point throws the earlier area away
    start_scratch_line(rubber, press);
    unit.area_of_opeartion->add(std::make_shared<oCoordinates>(
        oCoordinates{to_long(press.x - unit.xcoord), to_long(press.y - unit.ycoord)}));
    program.main.picMap.Refresh();
}

} // namespace

void cmdDrawAOO_Click(Program& program) {
    frmMain& main = program.main;
    main.drawing_aoo = !main.drawing_aoo;
    main.cmdDrawAOO.show_on(main.drawing_aoo);
    if (main.drawing_aoo) {
        disable_all(program);
        return;
    }
    enable_all(program);
    main.linTempLine.visible = false;
    main.aoo_popup_guard = true;
    main.picMap.Refresh();
}

void cmdDelAOO_Click(Program& program) {
    trap(program, " when drawing AOO.", [&] {
        const Answer answer =
            program.platform.message({"Delete the unit's area of operations?", Icon::question,
                                      Buttons::yes_no, Answer::no, program_title});
        if (answer != Answer::yes) return;
        active_unit(program).area_of_opeartion.drop();
        program.main.picMap.Refresh();
    });
}

bool area_tool_is_on(const Program& program) { return program.main.drawing_aoo; }

Outcome press_draws_area(Program& program, const MapPress& press) {
    if (press.button == left_button)
        trap(program, " when drawing AOO.", [&] { add_area_point(program, press); });
    if (press.button == right_button) cmdDrawAOO_Click(program);
    return Outcome::done;
}

void cmdSetFirefan_Click(Program& program) {
    frmMain& main = program.main;
    main.setting_firefan = !main.setting_firefan;
    main.cmdSetFirefan.show_on(main.setting_firefan);
    if (!main.setting_firefan) main.linTempLine.visible = false;
}

bool firefan_tool_is_on(const Program& program) { return program.main.setting_firefan; }

Outcome press_sets_firefan(Program& program, const MapPress& press) {
    frmMain& main = program.main;
    main.linTempLine.visible = false;
    set_firefan_angle(program, press.x, press.y);
    main.setting_firefan = false;
    main.cmdSetFirefan.show_on(false);
    main.picMap.Refresh();
    return Outcome::done;
}

void turn_firefan(Program& program, const MapPress& press) {
    const auto& unit = program.campaign.curUnit;
    LineControl& rubber = program.main.linTempLine;
    if (unit && !rubber.visible) {
        const Point at = place_of(*unit);
        rubber.x1 = at.x;
        rubber.y1 = at.y;
        rubber.visible = true;
    }
    set_firefan_angle(program, press.x, press.y);
}
