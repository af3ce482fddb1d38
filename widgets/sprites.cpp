#include "widgets/sprites.h"

#include "core/failure.h"
#include "core/files.h"
#include "widgets/colours_qt.h"

#include <QBuffer>
#include <QByteArray>
#include <QImage>
#include <QImageReader>

namespace {

constexpr int largest_side = 256; // of a marker picture; a damaged header may claim anything

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
    const QImage picture = reader.read();
    if (picture.isNull()) throw Failure{failure::invalid_picture};
    return picture.convertToFormat(QImage::Format_ARGB32);
}

void tint(QImage& picture, QRgb colour) {
    constexpr QRgb white = 0xFFFFFF;
    for (int y = 0; y < picture.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x)
            if (qAlpha(line[x]) == 0 || (line[x] & white) == white) line[x] = colour;
    }
}

} // namespace

PictureId Sprites::load(const std::string& path, std::int32_t colour) {
    const auto key = std::make_pair(path, colour);
    const auto known = ids.find(key);
    if (known != ids.end()) return known->second;
    QImage picture = read_symbol(path);
    tint(picture, to_qt_colour(colour).rgb());
    pictures.push_back(QPixmap::fromImage(std::move(picture)));
    const auto id = static_cast<PictureId>(pictures.size() - 1);
    ids.emplace(key, id);
    return id;
}

const QPixmap& Sprites::picture(PictureId id) const { return pictures.at(static_cast<std::size_t>(id)); }
