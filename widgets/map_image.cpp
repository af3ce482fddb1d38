#include "widgets/map_image.h"

#include "core/failure.h"
#include "core/files.h"
#include "widgets/area_scaler.h"
#include "widgets/jpeg_reader.h"

namespace {

constexpr int largest_side = 32767;
constexpr QSize overview_size(224, 250);
constexpr QSize full_screen_overview_size(629, 700);

bool sensible(const QSize& size) {
    return size.width() >= 1 && size.height() >= 1 && size.width() <= largest_side &&
           size.height() <= largest_side;
}

std::shared_ptr<const MapImage> with_overviews(QImage map, QImage full_screen) {
    QImage overview = full_screen.scaled(overview_size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                          .convertToFormat(QImage::Format_RGB888);
    return std::make_shared<const MapImage>(std::move(map), std::move(overview), std::move(full_screen));
}

AreaScaler full_screen_scaler(const QSize& map) {
    return {map.width(), map.height(), full_screen_overview_size.width(), full_screen_overview_size.height()};
}

} // namespace

std::shared_ptr<const MapImage> read_map(const std::string& path) {
    const std::string bytes = files::read(path);
    JpegReader reader(bytes);
    const QSize size(reader.width(), reader.height());
    if (!sensible(size)) throw Failure{failure::invalid_picture};
    QImage map(size, QImage::Format_RGB888);
    if (map.isNull()) throw Failure{failure::out_of_memory};
    AreaScaler scaler = full_screen_scaler(size);
    for (int y = 0; y < size.height(); ++y) {
        std::uint8_t* const row = map.scanLine(y);
        reader.read_row(row);
        scaler.add_row(row);
    }
    reader.finish();
    return with_overviews(std::move(map), scaler.take());
}
