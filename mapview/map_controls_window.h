#pragma once

#include "core/frmMain.h"
#include "widgets/sprites.h"

#include <QPainter>
#include <QRect>

/// Paints a rubber band while it is visible.
void paint_band(QPainter& painter, const ShapeControl& band);

/// Paints the markers in the tray from back to front, and its band.
void paint_tray_controls(QPainter& painter, const frmMain& main, const Sprites& sprites);

/// Paints the visible controls over the map from back to front, then the scratch controls of the tools and
/// the find marker. The painter's origin is the map's; what does not meet the wanted map pixels is passed
/// over.
void paint_map_controls(QPainter& painter, const frmMain& main, const Sprites& sprites, const QRect& wanted);
