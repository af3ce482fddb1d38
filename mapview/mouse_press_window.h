#pragma once

#include "core/press.h"

#include <QMouseEvent>
#include <QPointF>

/// Whether the button is one of the three that the rules know.
bool is_known(Qt::MouseButton button);

/// Whether the button that changed is the only one of them that is down.
bool is_first(const QMouseEvent& event);

/// The mouse event as the rules see it, counted from the origin. The buttons are the one that changed, or
/// those that are down.
MapPress mouse_press(const QMouseEvent& event, Qt::MouseButtons buttons, QPointF origin = {});
