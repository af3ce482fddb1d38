#include "mapview/shape_control.h"

#include "core/numbers.h"

namespace {

void make_caption(Program& program, const oShapes& shape, MapLabel& caption) {
    caption.tag = shape.ID;
    caption.caption = shape.notes;
    caption.font = {shape.notesfont,
                    static_cast<double>(shape.notesfontsize),
                    shape.notesfontbold,
                    shape.notesfontitalic,
                    false,
                    false};
    caption.colour = shape.notescolor;
    const TextSize size = program.platform.text_size(caption.caption, caption.font);
    caption.width = size.width;
    caption.height = size.height;
    caption.left = shape.xcoord - size.width / 2;
    caption.top = shape.ycoord - size.height / 2;
    program.main.bring_to_front(caption);
    caption.visible = true;
}

} // namespace

void make_shape_controls(Program& program, const oShapes& shape) {
    const int index = program.campaign.gNextShapeIndex;
    MapShape& outline = program.main.shpShape.load(index);
    outline.tag = shape.ID;
    outline.draw_mode = shape.drawmode;
    outline.border_colour = shape.bordercolor;
    outline.border_width = shape.borderwidth;
    outline.width = shape.width;
    outline.height = shape.height;
    outline.shape = shape.shape;
    outline.top = shape.ycoord - shape.height / 2.0;
    outline.left = shape.xcoord - shape.width / 2.0;
    outline.fill_colour = shape.fillcolor;
    program.main.bring_to_front(outline);
    outline.visible = true;
    make_caption(program, shape, program.main.lblShapeLabel.load(index));
    program.campaign.gNextShapeIndex = to_int16(index + 1);
}
