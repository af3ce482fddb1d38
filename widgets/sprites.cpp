#include "widgets/sprites.h"

#include "core/failure.h"
#include "core/files.h"
#include "widgets/colours_qt.h"

#include <QBuffer>
#include <QByteArray>
#include <QImage>
#include <QImageReader>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int largest_side = 4096; // a damaged header may claim anything
constexpr QSize marker_size(29, 31);

QImage read_symbol(const std::string& path) {
    std::string bytes;
    try {
        bytes = files::read(path);
    } catch (const Failure&) {
        // Whatever keeps the picture from being opened, it counts as missing.
        throw Failure{failure::file_not_found};
    }
    QByteArray array = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buffer(&array);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    if (size.width() > largest_side || size.height() > largest_side) throw Failure{failure::invalid_picture};
    QImage picture = reader.read();
    if (picture.isNull()) throw Failure{failure::invalid_picture};
    return picture;
}

/// The symbol over a ground of the colour, which also takes the place of every white pixel.
QImage tinted(const QImage& symbol, const QColor& colour) {
    QImage picture(marker_size, QImage::Format_RGB32);
    picture.fill(colour);
    QPainter painter(&picture);
    painter.drawImage(0, 0, symbol);
    painter.end();
    const QRgb white = qRgb(255, 255, 255);
    for (int y = 0; y < picture.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        std::replace(line, line + picture.width(), white, colour.rgb());
    }
    return picture;
}

} // namespace

PictureId Sprites::load(const std::string& path, std::int32_t colour) {
    const auto key = std::make_pair(path, colour);
    const auto known = ids.find(key);
    if (known != ids.end()) return known->second;
    pictures.push_back(QPixmap::fromImage(tinted(read_symbol(path), to_qt_colour(colour))));
    const auto id = static_cast<PictureId>(pictures.size() - 1);
    ids.emplace(key, id);
    return id;
}

const QPixmap& Sprites::picture(PictureId id) const { return pictures.at(static_cast<std::size_t>(id)); }
