#include "mapview/mouse_press_window.h"

bool is_known(Qt::MouseButton button) {
    return button == Qt::LeftButton || button == Qt::RightButton || button == Qt::MiddleButton;
}

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
