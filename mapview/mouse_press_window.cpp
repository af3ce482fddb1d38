#include "mapview/mouse_press_window.h"

namespace {

constexpr Qt::MouseButtons known_buttons = Qt::LeftButton | Qt::RightButton | Qt::MiddleButton;

} // namespace

bool is_known(Qt::MouseButton button) { return known_buttons.testFlag(button); }

bool is_first(const QMouseEvent& event) { return (event.buttons() & known_buttons) == event.button(); }

MapPress mouse_press(const QMouseEvent& event, Qt::MouseButtons buttons, QPointF origin) {
    MapPress press;
    if (buttons & Qt::LeftButton) press.button |= left_button;
    if (buttons & Qt::RightButton) press.button |= right_button;
    if (buttons & Qt::MiddleButton) press.button |= 4;
    if (event.modifiers() & Qt::ShiftModifier) press.shift |= shift_key;
    if (event.modifiers() & Qt::ControlModifier) press.shift |= ctrl_key;
    const QPointF point = event.position() - origin;
    press.x = point.x();
    press.y = point.y();
    return press;
}
