#pragma once

#include "core/program.h"

#include <QImage>

/// The part of the map that is in view with all its layers, painted once for each refresh and each place that
/// it is scrolled to. Whatever else moves over the map is painted over a copy of this.
class MapLayers {
  public:
    /// The image of this part of the map, map pixels, at so many screen pixels to the map pixel.
    const QImage& image(Program& program, const QRect& part, double scale);

  private:
    void paint(const Program& program);

    QImage painted;
    QRect painted_part;
    long painting = 0; // the number of the paint that is shown
};
