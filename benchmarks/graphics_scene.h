#pragma once

#include "core/program.h"

#include <QGraphicsScene>
#include <QImage>

#include <memory>

/// A graphics scene with an item for each figure of the last paint and each marker.
std::unique_ptr<QGraphicsScene> graphics_scene(const Program& program);

/// Shows the part of the scene that is in view.
void paint_graphics_scene(QGraphicsScene& scene, const Program& program, QImage& image);
