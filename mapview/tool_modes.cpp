#include "mapview/tool_modes.h"

namespace {

void set_all(Toolbar& tools, bool enabled) {
    for (Button* button :
         {&tools.cmdDrawLines, &tools.cmdCreateShapes, &tools.cmdLabel, &tools.cmdCreateUnits,
          &tools.cmdDrawPolygon, &tools.cmdRangecheck, &tools.cmdPathRange, &tools.cmdFindCoord,
          &tools.cmdUnitTray, &tools.cmdShowFullscreen, &tools.cmdSavemap, &tools.cmdSnapshot,
          &tools.cmdFireMissions, &tools.cmdEditGMPlayers, &tools.cmdTownsData})
        button->enabled = enabled;
}

} // namespace

void disable_all(Program& program) { set_all(program.main, false); }

void enable_all(Program& program) { set_all(program.main, true); }

void put_over_unit_info(Program& program, PictureBox& panel) {
    const PictureBox& info = program.main.picUnitInfo;
    panel.left = info.left;
    panel.top = info.top;
    panel.width = info.width;
    panel.height = info.height;
    panel.visible = true;
}

void start_scratch_line(LineControl& line, const MapPress& press) {
    line.x1 = line.x2 = press.x;
    line.y1 = line.y2 = press.y;
    line.visible = true;
}

void end_line_modes(Program& program) {
    frmMain& main = program.main;
    main.drawing_lines = false;
    main.deleting_line = false;
    main.deleting_line_point = false;
    main.moving_line_point = false;
    main.inserting_line_point = false;
    main.line_ended = true;
    for (Button* button : {&main.cmdStartDrawLines, &main.cmdDeleteLine, &main.cmdMovePoint,
                           &main.cmdDeletePoint, &main.cmdInsertPointLine, &main.cmdDeleteAllLines}) {
        button->enabled = true;
        button->show_on(false);
    }
    main.linTempLine.visible = false;
    main.linTempLine2.visible = false;
}
