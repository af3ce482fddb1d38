#pragma once

#include "core/map_controls.h"

#include <QPixmap>

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

/// The composed marker pictures: one for each symbol and colour, made once.
class Sprites {
  public:
    /// The symbol with every white and every transparent pixel in the colour. Fails with 53 when the picture
    /// can't be opened, with 481 when it is damaged.
    PictureId load(const std::string& path, std::int32_t colour);

    /// The picture; a null pixmap for 0.
    const QPixmap& picture(PictureId id) const;

  private:
    std::map<std::pair<std::string, std::int32_t>, PictureId> ids;
    std::vector<QPixmap> pictures = std::vector<QPixmap>(1);
};
