#include "annotation/line_press.h"

#include "annotation/arrowhead.h"
#include "annotation/line_panel.h"
#include "annotation/vertices.h"
#include "core/numbers.h"
#include "core/trap.h"
#include "mapview/tool_modes.h"

#include <string_view>

namespace {

struct Pick {
    std::shared_ptr<oLines> line;
    std::size_t place = 0; // 1-based
};

Pick first_pick(const Program& program, double x, double y) {
    for (const auto& line : program.campaign.colLines) {
        const std::size_t place = first_near(line->colCoords, x, y);
        if (place != 0) return {line, place};
    }
    return {};
}

void stretch_between(LineControl& control, const oCoordinates& from, const oCoordinates& to) {
    control.x1 = from.x_cor;
    control.y1 = from.y_cor;
    control.x2 = to.x_cor;
    control.y2 = to.y_cor;
    control.visible = true;
}

void take_pick(Program& program, const Pick& pick) {
    program.campaign.curLine = pick.line;
    program.main.selected_point = to_int16(static_cast<double>(pick.place));
}

void let_pick_go(Program& program) {
    program.main.selected_point = 0;
    program.campaign.curLine = nullptr;
    program.main.linTempLine.visible = false;
    program.main.linTempLine2.visible = false;
}

/// The line in hand and its picked vertex; a press without them fails with 91.
oLines& line_in_hand(const Program& program) {
    if (!program.campaign.curLine) throw Failure{failure::no_object};
    return *program.campaign.curLine;
}

void move_picked_vertex(Program& program, const MapPress& press) {
    oLines& line = line_in_hand(program);
    const auto place = static_cast<std::size_t>(program.main.selected_point);
    *line.colCoords->at(place) = *dropped_vertex(press.x, press.y);
    // Dropped on a marker or a label, only the end of the line gets its arrowhead anew.
    if (line.is_arrow && (press.on_bare_map || place == line.colCoords.count())) find_arrowhead(program);
    let_pick_go(program);
    program.main.picMap.Refresh();
}

void insert_behind_pick(Program& program, const MapPress& press) {
    oLines& line = line_in_hand(program);
    line.colCoords->insert_after(static_cast<std::size_t>(program.main.selected_point),
                                 dropped_vertex(press.x, press.y));
    if (line.is_arrow) find_arrowhead(program);
    let_pick_go(program);
    program.main.picMap.Refresh();
}

void start_line(Program& program, double x, double y) {
    frmMain& main = program.main;
    auto line = std::make_shared<oLines>();
    line->is_arrow = main.chkArrow.value;
    line->is_boundry = main.chkBoundry.value;
    line->boundry_size = main.cboBoundrySize.text;
    line->is_polyline = main.optPolyline.value;
    line->linecolor = main.picLineColor.back_colour;
    line->linestyle = main.lineEx[0].style;
    line->linewidth = main.lineEx[0].width;
    line->colCoords->add(drawn_vertex(x, y));
    main.line_ended = false;
    program.campaign.curLine = line;
    program.campaign.colLines->add(line);
}

void end_polyline(Program& program) {
    frmMain& main = program.main;
    main.line_ended = true;
    main.linTempLine.visible = false;
    if (program.campaign.curLine && program.campaign.curLine->is_arrow) find_arrowhead(program);
    program.campaign.curLine = nullptr;
    main.picMap.Refresh();
}

/// Runs the body under a trap of its own and ends the press.
template <class Body> Outcome ends_press(Program& program, std::string_view ending, Body body) {
    trap(program, ending, body);
    return Outcome::done;
}

} // namespace

bool is_inserting_line_point(const Program& program) { return program.main.inserting_line_point; }
bool is_moving_line_point(const Program& program) { return program.main.moving_line_point; }
bool is_deleting_line(const Program& program) { return program.main.deleting_line; }
bool is_deleting_line_point(const Program& program) { return program.main.deleting_line_point; }
bool is_drawing_lines(const Program& program) { return program.main.drawing_lines; }

void pick_line_point_for_move(Program& program, double x, double y) {
    const Pick pick = first_pick(program, x, y);
    if (!pick.line) return;
    frmMain& main = program.main;
    const auto& vertices = *pick.line->colCoords;
    const oCoordinates& picked = *vertices.at(pick.place);
    const bool first = pick.place == 1;
    stretch_between(main.linTempLine, *vertices.at(first ? 2 : pick.place - 1), picked);
    if (!first && pick.place < vertices.count())
        stretch_between(main.linTempLine2, *vertices.at(pick.place + 1), picked);
    take_pick(program, pick);
}

void pick_line_point_for_insert(Program& program, double x, double y) {
    const Pick pick = first_pick(program, x, y);
    if (!pick.line) return;
    frmMain& main = program.main;
    const auto& vertices = *pick.line->colCoords;
    const oCoordinates& picked = *vertices.at(pick.place);
    if (vertices.count() < 2) throw Failure{failure::no_such_position};
    stretch_between(main.linTempLine, picked, picked);
    if (pick.place < vertices.count())
        stretch_between(main.linTempLine2, *vertices.at(pick.place + 1), picked);
    take_pick(program, pick);
}

void add_line_point(Program& program, double x, double y) {
    frmMain& main = program.main;
    if (main.line_ended) {
        start_line(program, x, y);
        return;
    }
    line_in_hand(program).colCoords->add(drawn_vertex(x, y));
    if (main.optSingleLine.value) {
        main.line_ended = true;
        main.linTempLine.visible = false;
        if (program.campaign.curLine->is_arrow) find_arrowhead(program);
    }
    main.picMap.Refresh();
}

void delete_line_at(Program& program, double x, double y) {
    std::size_t position = 0;
    std::size_t found = 0;
    for (const auto& line : program.campaign.colLines) {
        ++position;
        if (first_near(line->colCoords, x, y) != 0) found = position;
    }
    if (found == 0) return;
    program.campaign.colLines->remove_at(found);
    program.main.picMap.Refresh();
}

void delete_line_point_at(Program& program, double x, double y) {
    const Pick pick = first_pick(program, x, y);
    if (!pick.line) return;
    if (pick.line->colCoords.count() < 3) {
        program.platform.message({"A line cannot have less than 2 points!", Icon::warning});
        return;
    }
    pick.line->colCoords->remove_at(pick.place);
    program.main.picMap.Refresh();
}

Outcome press_inserts_line_point(Program& program, const MapPress& press) {
    return ends_press(program, " when moving a point.", [&] {
        if (program.main.selected_point == 0)
            pick_line_point_for_insert(program, press.x, press.y);
        else
            insert_behind_pick(program, press);
    });
}

Outcome press_moves_line_point(Program& program, const MapPress& press) {
    return ends_press(program, " when moving a point.", [&] {
        if (program.main.selected_point == 0)
            pick_line_point_for_move(program, press.x, press.y);
        else
            move_picked_vertex(program, press);
    });
}

Outcome press_drops_pick(Program& program, const MapPress& /*press*/) {
    let_pick_go(program);
    cmdMovePoint_Click(program);
    return Outcome::done;
}

Outcome press_deletes_line(Program& program, const MapPress& press) {
    if (press.button == right_button) cmdDeleteLine_Click(program);
    if (press.button != left_button) return Outcome::done;
    return ends_press(program, " when deleting lines.", [&] { delete_line_at(program, press.x, press.y); });
}

Outcome press_deletes_line_point(Program& program, const MapPress& press) {
    if (press.button == right_button) cmdDeletePoint_Click(program);
    if (press.button != left_button) return Outcome::done;
    return ends_press(program, " when deleting a point.",
                      [&] { delete_line_point_at(program, press.x, press.y); });
}

Outcome press_draws_line(Program& program, const MapPress& press) {
    frmMain& main = program.main;
    if (press.button == right_button && main.optPolyline.value && !main.line_ended) end_polyline(program);
    if (press.button != left_button) return Outcome::done;
    return ends_press(program, " when drawing lines.", [&] {
        add_line_point(program, press.x, press.y);
        const bool finished = main.optSingleLine.value && main.line_ended;
        if (!finished) start_scratch_line(main.linTempLine, press);
    });
}
