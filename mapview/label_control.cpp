#include "mapview/label_control.h"

#include "core/numbers.h"

void make_label_control(Program& program, const oLabels& label) {
    const int index = program.campaign.gNextLabelIndex;
    MapLabel& control = program.main.lblUser.load(index);
    control.tag = label.ID;
    control.caption = label.text;
    control.colour = label.font_color;
    control.back_colour = label.backcolor;
    control.back_style = label.backstyle;
    control.border_style = label.borderstyle;
    control.font = {label.font_name,      static_cast<double>(label.font_size),
                    label.font_bold,      label.font_italic,
                    label.font_underline, label.font_strikethru};
    const TextSize size = program.platform.text_size(control.caption, control.font);
    const double frame = label.borderstyle != 0 ? 2 : 0;
    control.width = size.width + frame;
    control.height = size.height + frame;
    control.left = label.xcoord;
    control.top = label.ycoord;
    program.main.bring_to_front(control);
    control.visible = true;
    program.campaign.gNextLabelIndex = to_int16(index + 1);
}

void bring_labels_to_front(Program& program) {
    for (int i = 1; i < program.campaign.gNextLabelIndex; ++i)
        program.main.bring_to_front(program.main.lblUser(i));
}
