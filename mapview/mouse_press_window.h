#pragma once

#include "core/press.h"

#include <QMouseEvent>
#include <QPointF>

/// The mouse event as the rules see it, counted from the origin. The buttons are the one that changed, or
/// those that are down.
MapPress mouse_press(const QMouseEvent& event, Qt::MouseButtons buttons, QPointF origin = {});
