#pragma once

#include <QImage>
#include <QPainter>
#include <QRectF>

#include <functional>

/// Paints an image in horizontal strips, one for each core, all at the same time. `paint` gets a painter in
/// the image's logical coordinates and the strip that it can reach; it runs in other threads and must only
/// read what it shares with them.
void paint_in_strips(QImage& image, const std::function<void(QPainter&, const QRectF&)>& paint);
