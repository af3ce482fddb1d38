#pragma once

#include "core/frmMain.h"
#include "widgets/sprites.h"

#include <QPainter>
#include <QRect>

/// Paints the visible controls over the map from back to front, then the find marker. The painter's origin is
/// the map's; what does not meet the wanted map pixels is passed over.
void paint_map_controls(QPainter& painter, const frmMain& main, const Sprites& sprites, const QRect& wanted);
