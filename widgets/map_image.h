#pragma once

#include "core/platform.h"

#include <QImage>

#include <memory>
#include <string>

/// The map in memory, three bytes a pixel: painting from it is as quick as from four, and a third smaller.
/// Its two small copies are made while it is read.
class MapImage : public MapPicture {
  public:
    MapImage(QImage map, QImage overview, QImage full_screen_overview)
        : map(std::move(map)), overview(std::move(overview)),
          full_screen_overview(std::move(full_screen_overview)) {}

    int width() const override { return map.width(); }
    int height() const override { return map.height(); }

    const QImage map;
    const QImage overview;             // 224 x 250
    const QImage full_screen_overview; // 629 x 700
};

/// Reads a map picture of at most 32,767 pixels a side. Fails with 53 when it is missing, with 481 when it is
/// damaged, cut off or no picture.
std::shared_ptr<const MapImage> read_map(const std::string& path);
