#include "mapview/move_label.h"

#include "core/numbers.h"

namespace {

/// Puts a label where the pointer has it.
void put(const Program& program, MapLabel& label, double x, double y) {
    label.left = x - program.main.label_grab_x;
    label.top = y - program.main.label_grab_y;
}

} // namespace

void move_label(Program& program, int index, double x, double y) {
    MapLabel& label = program.main.lblUser(index);
    oLabels& record = *program.campaign.colLabels->item(label.tag);
    const std::int16_t left = to_int16(x - program.main.label_grab_x);
    const std::int16_t top = to_int16(y - program.main.label_grab_y);
    put(program, label, x, y);
    record.xcoord = left;
    record.ycoord = top;
}

void move_shape_by_caption(Program& program, int index, double x, double y) {
    frmMain& main = program.main;
    MapLabel& caption = main.lblShapeLabel(index);
    oShapes& record = *program.campaign.colShapes->item(caption.tag);
    const std::int16_t centre_x = to_int16(x - main.label_grab_x + caption.width / 2);
    const std::int16_t centre_y = to_int16(y - main.label_grab_y + caption.height / 2);
    MapShape& outline = main.shpShape(index);
    record.xcoord = centre_x;
    record.ycoord = centre_y;
    outline.left = centre_x - outline.width / 2;
    outline.top = centre_y - outline.height / 2;
    put(program, caption, x, y);
}
