#include "annotation/line_panel.h"

#include "annotation/arrowhead.h"
#include "core/trap.h"
#include "mapview/tool_modes.h"

#include <algorithm>

namespace {

using Modes = std::array<Button LinePanel::*, 6>;

constexpr Modes modes{&LinePanel::cmdStartDrawLines,  &LinePanel::cmdDeleteLine,
                      &LinePanel::cmdMovePoint,       &LinePanel::cmdDeletePoint,
                      &LinePanel::cmdInsertPointLine, &LinePanel::cmdDeleteAllLines};

/// Shows a mode on, its siblings disabled, or off and all enabled.
void show_mode(LinePanel& panel, Button LinePanel::*mode, bool on) {
    (panel.*mode).show_on(on);
    for (Button LinePanel::*sibling : modes)
        if (sibling != mode) (panel.*sibling).enabled = !on;
}

void toggle_mode(Program& program, bool ToolFlags::*flag, Button LinePanel::*button) {
    program.main.*flag = !(program.main.*flag);
    show_mode(program.main, button, program.main.*flag);
}

bool is_echelon(const ComboBox& sizes) {
    return std::find(sizes.rows.begin(), sizes.rows.end(), sizes.text) != sizes.rows.end();
}

void close_panel(Program& program) {
    program.main.cmdDrawLines.show_on(false);
    enable_all(program);
    end_line_modes(program);
    program.main.picDrawLines.visible = false;
}

void open_panel(Program& program) {
    frmMain& main = program.main;
    main.cmdPlaceShape.show_on(false);
    main.placing_shape = false;
    main.picPlaceShapes.visible = false;
    main.cmdDrawLines.show_on(true);
    main.line_ended = true;
    disable_all(program);
    put_over_unit_info(program, main.picDrawLines);
    main.picUnitInfo.visible = false;
}

void end_drawing(Program& program) {
    frmMain& main = program.main;
    Campaign& campaign = program.campaign;
    if (campaign.curLine) {
        if (main.optPolyline.value && !main.line_ended && campaign.curLine->is_arrow) {
            find_arrowhead(program);
            main.picMap.Refresh();
        }
        main.linTempLine.visible = false;
        campaign.curLine = nullptr;
    }
    main.line_ended = true;
    show_mode(main, &LinePanel::cmdStartDrawLines, false);
}

} // namespace

void cmdDrawLines_Click(Program& program) {
    if (program.main.picDrawLines.visible)
        close_panel(program);
    else
        open_panel(program);
}

void cmdExitDrawLine_Click(Program& program) { close_panel(program); }

void cmdStartDrawLines_Click(Program& program) {
    trap(program, " when drawing lines.", [&] {
        frmMain& main = program.main;
        main.drawing_lines = !main.drawing_lines;
        if (!main.drawing_lines) {
            end_drawing(program);
            return;
        }
        // The flag stays on all the same: presses draw boundaries without a sign.
        if (main.chkBoundry.value && !is_echelon(main.cboBoundrySize)) {
            program.platform.message(
                {"Invalid boundry size. Please select one from the list!", Icon::warning});
            return;
        }
        main.line_ended = true;
        show_mode(main, &LinePanel::cmdStartDrawLines, true);
    });
}

void cmdDeleteLine_Click(Program& program) {
    toggle_mode(program, &ToolFlags::deleting_line, &LinePanel::cmdDeleteLine);
}

void cmdMovePoint_Click(Program& program) {
    toggle_mode(program, &ToolFlags::moving_line_point, &LinePanel::cmdMovePoint);
}

void cmdDeletePoint_Click(Program& program) {
    toggle_mode(program, &ToolFlags::deleting_line_point, &LinePanel::cmdDeletePoint);
}

void cmdInsertPointLine_Click(Program& program) {
    toggle_mode(program, &ToolFlags::inserting_line_point, &LinePanel::cmdInsertPointLine);
}

void cmdDeleteAllLines_Click(Program& program) {
    const Answer answer = program.platform.message(
        {"Delete all the lines?", Icon::question, Buttons::yes_no, Answer::no, program_title});
    if (answer != Answer::yes) return;
    program.campaign.colLines.drop();
    program.main.picMap.Refresh();
}

void update_line_sample(Program& program) {
    frmMain& main = program.main;
    std::int16_t style = 1;
    for (std::size_t i = 1; i < main.optLineStyle.size(); ++i)
        if (main.optLineStyle[i].value) style = static_cast<std::int16_t>(i);
    for (SampleLine& sample : main.lineEx)
        sample = {style, main.scrlLineWidth.value, main.picLineColor.back_colour};
    main.lblLineWidth.caption = std::to_string(main.scrlLineWidth.value);
    if (main.drawing_lines) cmdStartDrawLines_Click(program);
}

void cboBoundrySize_Change(Program& program) { update_line_sample(program); }

void chkArrow_Click(Program& program) {
    program.main.chkBoundry.enabled = !program.main.chkArrow.value;
    update_line_sample(program);
}

void chkBoundry_Click(Program& program) {
    frmMain& main = program.main;
    main.chkArrow.enabled = !main.chkBoundry.value;
    main.cboBoundrySize.enabled = !main.cboBoundrySize.enabled;
    update_line_sample(program);
}

void optLineStyle_Click(Program& program, int index) {
    auto& styles = program.main.optLineStyle;
    for (std::size_t i = 0; i < styles.size(); ++i) styles[i].value = static_cast<int>(i) == index;
    update_line_sample(program);
}

void optPolyline_Click(Program& program) {
    program.main.optPolyline.value = true;
    program.main.optSingleLine.value = false;
    update_line_sample(program);
}

void optSingleLine_Click(Program& program) {
    program.main.optSingleLine.value = true;
    program.main.optPolyline.value = false;
    update_line_sample(program);
}

void scrlLineWidth_Change(Program& program) { update_line_sample(program); }

void cmdLineColor_Click(Program& program) {
    ColourBox& shown = program.main.picLineColor;
    const int number =
        failure_of([&] { shown.back_colour = program.platform.colour_dialog(shown.back_colour); });
    if (number == 0)
        update_line_sample(program);
    else if (number != failure::cancelled)
        show_failure(program, number, " when drawing lines.");
}
