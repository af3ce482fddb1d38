#include "mapview/keys.h"

#include "core/trap.h"
#include "mapview/scrolling.h"

namespace {

constexpr int key_step = 40;

double one_step_less(const ScrollBar& bar) { return bar.value > key_step ? bar.value - key_step : 0; }

double one_step_more(const ScrollBar& bar) {
    return bar.value < bar.max - key_step ? bar.value + key_step : bar.max;
}

void go_left(Program& program) { scroll_horizontally_to(program, one_step_less(program.main.scrlHMap)); }
void go_right(Program& program) { scroll_horizontally_to(program, one_step_more(program.main.scrlHMap)); }
void go_up(Program& program) { scroll_vertically_to(program, one_step_less(program.main.scrlVMap)); }
void go_down(Program& program) { scroll_vertically_to(program, one_step_more(program.main.scrlVMap)); }

/// Deleted markers included: letting the key go must not depend on what state each one was in.
void show_unit_markers(Program& program, bool visible) {
    for (int i = 1; i < program.campaign.gNextUnitIndex; ++i)
        if (program.main.imgUnit.has(i)) program.main.imgUnit(i).visible = visible;
}

void scroll_by_key(Program& program, int code) {
    switch (code) {
    case key::up:
    case key::keypad_0 + 8:
        go_up(program);
        break;
    case key::down:
    case key::keypad_0 + 2:
        go_down(program);
        break;
    case key::left:
    case key::keypad_0 + 4:
        go_left(program);
        break;
    case key::right:
    case key::keypad_0 + 6:
        go_right(program);
        break;
    case key::keypad_0 + 7:
        go_up(program);
        go_left(program);
        break;
    case key::keypad_0 + 9:
        go_up(program);
        go_right(program);
        break;
    case key::keypad_0 + 3:
        go_right(program);
        go_down(program);
        break;
    case key::keypad_0 + 1:
        go_down(program);
        go_left(program);
        break;
    default:
        break;
    }
}

} // namespace

void Form_KeyDown(Program& program, int code) {
    trap(program, " when moving the map using arrow-keys.", [&] {
        scroll_by_key(program, code);
        if (code == key::ctrl) show_unit_markers(program, false);
    });
}

void Form_KeyUp(Program& program, int code) {
    if (code == key::ctrl) show_unit_markers(program, true);
}
