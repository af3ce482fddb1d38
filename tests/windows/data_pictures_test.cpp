#include "core/files.h"
#include "core/reference_files.h"
#include "program/paint_order.h"
#include "tools/support/quiet_platform.h"
#include "widgets/map_image.h"
#include "widgets/sprites.h"

#include <QDir>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <vector>

namespace {

const std::string directory = PROGRAM_DIRECTORY;
const QString pictures = QString(TOUR_DIRECTORY) + "/data";

/// How dark a column of the map is, on the average.
double darkness_of_column(const QImage& map, int x) {
    double sum = 0;
    for (int y = 0; y < map.height(); ++y) sum += 255 - qGray(map.pixel(x, y));
    return sum / map.height();
}

double darkness_of_row(const QImage& map, int y) {
    double sum = 0;
    for (int x = 0; x < map.width(); ++x) sum += 255 - qGray(map.pixel(x, y));
    return sum / map.width();
}

} // namespace

TEST(DataPictures, EveryMarkerDiffersFromTheOthersOfItsSideAndShowsItsColour) {
    QuietPlatform platform;
    Program program(platform, {});
    program.campaign.gAppPath = directory;
    load_unit_types(program);
    const std::array<std::int32_t, 4> colours{5263615, 11053224, 0x60FFFF, 0x40C0FF};
    constexpr int columns = 24;
    constexpr QSize cell(33, 35);
    const int rows = static_cast<int>(program.campaign.colUnitTypes.count()) / columns + 1;
    QImage sheet(cell.width() * columns, cell.height() * rows * static_cast<int>(colours.size()),
                 QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    Sprites sprites;
    int block = 0;
    for (const std::int32_t colour : colours) {
        std::map<std::string, std::vector<QImage>> seen;
        int number = 0;
        for (const auto& type : program.campaign.colUnitTypes) {
            const PictureId id = sprites.load(files::reference_path(directory + type->fullname), colour);
            const QImage marker = sprites.picture(id).toImage();
            ASSERT_EQ(marker.size(), QSize(29, 31)) << type->unittype;
            EXPECT_EQ(marker.pixel(0, 30), qRgb(colour & 0xFF, colour >> 8 & 0xFF, colour >> 16))
                << type->unittype;
            for (const QImage& other : seen[type->nationality]) EXPECT_NE(marker, other) << type->unittype;
            seen[type->nationality].push_back(marker);
            painter.drawImage(number % columns * cell.width() + 2,
                              (block * rows + number / columns) * cell.height() + 2, marker);
            ++number;
        }
        ++block;
    }
    painter.end();
    QDir().mkpath(pictures);
    EXPECT_TRUE(sheet.save(pictures + "/markers.png"));
}

TEST(DataPictures, MapHasItsSizeAndItsGridAgreesWithTheRulers) {
    const auto map = read_map(directory + "/map/velmora2.jpg");
    ASSERT_EQ(map->width(), 5468);
    ASSERT_EQ(map->height(), 6102);
    for (const int i : {4, 12, 27}) {
        const double line = darkness_of_column(map->map, 150 * i);
        EXPECT_GT(line, darkness_of_column(map->map, 150 * i + 3)) << i;
        EXPECT_GT(line, darkness_of_column(map->map, 150 * i - 3)) << i;
    }
    for (const int k : {5, 16, 31}) {
        const double line = darkness_of_row(map->map, 150 * k + 102);
        EXPECT_GT(line, darkness_of_row(map->map, 150 * k + 102 + 3)) << k;
        EXPECT_GT(line, darkness_of_row(map->map, 150 * k + 102 - 3)) << k;
    }
    QDir().mkpath(pictures);
    int number = 0;
    for (const QPoint& corner :
         {QPoint(0, 0), QPoint(2000, 200), QPoint(4600, 300), QPoint(700, 1400), QPoint(1900, 2500),
          QPoint(2800, 2200), QPoint(4100, 3100), QPoint(600, 3300), QPoint(3700, 3900), QPoint(200, 4800),
          QPoint(2600, 5000), QPoint(4600, 5500)})
        EXPECT_TRUE(map->map.copy(QRect(corner, QSize(860, 600)))
                        .save(pictures + QString("/map %1.png").arg(++number, 2, 10, QChar('0'))));
}
