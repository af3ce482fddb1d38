#include "core/failure.h"
#include "core/surface.h"
#include "tools/markers/canvas.h"
#include "widgets/area_scaler.h"
#include "widgets/colours_qt.h"
#include "widgets/map_image.h"
#include "widgets/painter_surface.h"
#include "widgets/sprites.h"
#include "widgets/text.h"

#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace {

class Pictures : public testing::Test {
  protected:
    std::string path(const char* name) const { return folder.filePath(name).toStdString(); }

    std::string jpeg(int width, int height, const char* name) {
        QImage image(width, height, QImage::Format_RGB32);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) image.setPixel(x, y, qRgb(x % 256, y % 256, 128));
        EXPECT_TRUE(image.save(folder.filePath(name), "JPG", 90));
        return path(name);
    }

    template <class Body> static int number_of(Body body) {
        try {
            body();
        } catch (const Failure& failed) {
            return failed.number;
        }
        return 0;
    }

    QTemporaryDir folder;
};

/// A ground of one colour with a surface on it.
struct Ground {
    Ground() { image.fill(QColor(100, 200, 50)); }
    QRgb at(int x, int y) const { return image.pixel(x, y); }
    QImage image{64, 64, QImage::Format_RGB32};
};

constexpr QRgb ground = qRgb(100, 200, 50);

} // namespace

TEST_F(Pictures, MapIsReadWithItsTwoSmallCopies) {
    const auto map = read_map(jpeg(1000, 1200, "map.jpg"));
    EXPECT_EQ(map->width(), 1000);
    EXPECT_EQ(map->height(), 1200);
    EXPECT_EQ(map->map.format(), QImage::Format_RGB888);
    EXPECT_EQ(map->overview.size(), QSize(224, 250));
    EXPECT_EQ(map->full_screen_overview.size(), QSize(629, 700));
    EXPECT_NEAR(qRed(map->full_screen_overview.pixel(60, 60)), 95, 6);
}

TEST_F(Pictures, MapSmallerThanItsCopiesIsEnlarged) {
    const auto map = read_map(jpeg(40, 30, "small.jpg"));
    EXPECT_NEAR(qRed(map->full_screen_overview.pixel(620, 350)), 39, 8);
    EXPECT_NEAR(qGreen(map->full_screen_overview.pixel(300, 690)), 29, 8);
}

TEST_F(Pictures, MissingMapIs53AndWhatIsNoPictureIs481) {
    EXPECT_EQ(number_of([&] { read_map(path("none.jpg")); }), 53);
    std::ofstream(path("text.jpg")) << "this is no picture";
    EXPECT_EQ(number_of([&] { read_map(path("text.jpg")); }), 481);
    const std::ofstream empty(path("empty.jpg"));
    EXPECT_EQ(number_of([&] { read_map(path("empty.jpg")); }), 481);
}

TEST_F(Pictures, MapCutOffAnywhereIsDamaged) {
    std::ostringstream whole;
    whole << std::ifstream(jpeg(400, 400, "map.jpg"), std::ios::binary).rdbuf();
    const std::string bytes = whole.str();
    for (const double share : {0.02, 0.1, 0.5, 0.9, 0.99}) {
        const auto length = static_cast<std::size_t>(static_cast<double>(bytes.size()) * share);
        std::ofstream(path("cut.jpg"), std::ios::binary) << bytes.substr(0, length);
        EXPECT_EQ(number_of([&] { read_map(path("cut.jpg")); }), 481) << share;
    }
}

TEST_F(Pictures, MapOfAnotherKindIsNone) {
    QImage image(300, 200, QImage::Format_RGB32);
    image.fill(QColor(10, 20, 30));
    ASSERT_TRUE(image.save(folder.filePath("map.png")));
    EXPECT_EQ(number_of([&] { read_map(path("map.png")); }), 481);
}

TEST_F(Pictures, ScalerGivesTheMeanOfWhatAPixelStandsFor) {
    AreaScaler scaler(4, 4, 2, 2);
    const std::array<std::uint8_t, 12> row{0, 0, 0, 100, 100, 100, 10, 20, 30, 30, 40, 50};
    for (int y = 0; y < 4; ++y) scaler.add_row(row.data());
    const QImage scaled = scaler.take();
    EXPECT_EQ(scaled.pixel(0, 1), qRgb(50, 50, 50));
    EXPECT_EQ(scaled.pixel(1, 0), qRgb(20, 30, 40));
}

TEST_F(Pictures, MarkerShowsTheColourWhereItIsWhite) {
    Canvas canvas;
    canvas.fill(0, 0, 5, 5);
    canvas.fill(6, 0, 9, 5, Canvas::paper);
    ASSERT_TRUE(write_gif(canvas, path("a.gif")));
    Sprites sprites;
    const PictureId id = sprites.load(path("a.gif"), 0x0000FF);
    const QImage picture = sprites.picture(id).toImage();
    EXPECT_EQ(picture.size(), QSize(29, 31));
    EXPECT_EQ(picture.pixel(0, 0), qRgb(0, 0, 0));
    EXPECT_EQ(picture.pixel(7, 0), qRgb(254, 254, 254));
    EXPECT_EQ(picture.pixel(20, 20), qRgb(255, 0, 0));
    EXPECT_EQ(sprites.load(path("a.gif"), 0x0000FF), id) << "made once";
    EXPECT_NE(sprites.load(path("a.gif"), 0x00FF00), id);
    EXPECT_TRUE(sprites.picture(0).isNull());
}

TEST_F(Pictures, MarkerThatCantBeOpenedIs53AndADamagedOneIs481) {
    Sprites sprites;
    EXPECT_EQ(number_of([&] { sprites.load(path("none.gif"), 0); }), 53);
    EXPECT_EQ(number_of([&] { sprites.load(path("none/none.gif"), 0); }), 53);
    EXPECT_EQ(number_of([&] { sprites.load(folder.path().toStdString(), 0); }), 53);
    std::ofstream(path("bad.gif")) << "GIF89a nonsense";
    EXPECT_EQ(number_of([&] { sprites.load(path("bad.gif"), 0); }), 481);
}

TEST_F(Pictures, EveryByteComesThroughTheWindowSystemUnchanged) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
    EXPECT_EQ(from_qt(to_qt(all)), all);
    EXPECT_EQ(to_qt("\x80\x99\xF7"), QString::fromUtf8("\u20AC\u2122\u00F7"));
    EXPECT_EQ(from_qt(QString::fromUtf8("a\u0416b\U0001F600")), "a?b?");
}

TEST_F(Pictures, ColoursHaveRedInTheLowByte) {
    EXPECT_EQ(to_qt_colour(0x0000C0), QColor(0xC0, 0, 0));
    EXPECT_EQ(from_qt_colour(QColor(1, 2, 3)), 0x030201);
    QPalette palette;
    palette.setColor(QPalette::Button, Qt::green);
    EXPECT_EQ(to_qt_colour(colour::button_face, palette), QColor(Qt::green));
}

TEST_F(Pictures, MaskTintsWhatIsThere) {
    Ground on;
    QPainter painter(&on.image);
    PainterSurface surface(painter);
    surface.pen.DrawMode = 9;
    surface.pen.FillStyle = 0;
    surface.pen.FillColor = 0x0000FF;
    surface.pen.ForeColor = 0x0000FF;
    surface.circle({32, 32}, 20);
    painter.end();
    EXPECT_EQ(on.at(32, 32), qRgb(100, 0, 0));
    EXPECT_EQ(on.at(2, 2), ground);
}

TEST_F(Pictures, HatchLeavesTheMapBetweenItsLinesInBothModes) {
    for (const int mode : {9, 13})
        for (const int style : {2, 3, 7}) {
            Ground on;
            QPainter painter(&on.image);
            PainterSurface surface(painter);
            surface.pen.DrawMode = mode;
            surface.pen.FillStyle = style;
            surface.pen.FillColor = 0x0000FF;
            surface.polygon({{0, 0}, {63, 0}, {63, 63}, {0, 63}});
            painter.end();
            int untouched = 0;
            int hatched = 0;
            for (int y = 8; y < 56; ++y)
                for (int x = 8; x < 56; ++x) {
                    untouched += on.at(x, y) == ground ? 1 : 0;
                    hatched += on.at(x, y) == (mode == 9 ? qRgb(100, 0, 0) : qRgb(255, 0, 0)) ? 1 : 0;
                }
            EXPECT_EQ(untouched + hatched, 48 * 48) << mode << " " << style;
            EXPECT_GT(untouched, hatched);
            EXPECT_GT(hatched, 48 * 48 / 10);
        }
}

TEST_F(Pictures, TransparentFillDrawsTheOutlineOnly) {
    Ground on;
    QPainter painter(&on.image);
    PainterSurface surface(painter);
    surface.circle({32, 32}, 20);
    painter.end();
    EXPECT_EQ(on.at(32, 32), ground);
    EXPECT_EQ(on.at(12, 32), qRgb(0, 0, 0));
}

TEST_F(Pictures, PieIsCutFromTheStartCounterClockwise) {
    Ground on;
    QPainter painter(&on.image);
    PainterSurface surface(painter);
    surface.pen.FillStyle = 0;
    surface.pen.FillColor = 0x0000FF;
    surface.pie({32, 32}, 24, 5.7596, 0.5236); // 330 to 30 degrees: across the east
    painter.end();
    EXPECT_EQ(on.at(46, 32), qRgb(255, 0, 0));
    EXPECT_EQ(on.at(18, 32), ground);
    EXPECT_EQ(on.at(32, 16), ground);
}

TEST_F(Pictures, TextStandsBelowItsPointAndFurtherLinesBelowTheFirst) {
    const auto rows_with_letters = [](const std::string& text) {
        Ground on;
        QPainter painter(&on.image);
        PainterSurface surface(painter);
        surface.print({8, 10}, text);
        painter.end();
        std::vector<int> rows;
        for (int y = 0; y < 64; ++y)
            for (int x = 0; x < 64; ++x)
                if (on.at(x, y) != ground && (rows.empty() || rows.back() != y)) rows.push_back(y);
        return rows;
    };
    const std::vector<int> first = rows_with_letters("H");
    ASSERT_FALSE(first.empty());
    EXPECT_GE(first.front(), 10);
    EXPECT_LT(first.back(), 24) << "within the first line";
    const std::vector<int> both = rows_with_letters("H\nH");
    ASSERT_EQ(both.size(), 2 * first.size());
    EXPECT_EQ(both[first.size() - 1], first.back());
    EXPECT_GT(both[first.size()], first.back());
    EXPECT_LT(both[first.size()], first.back() + 12);
}

TEST_F(Pictures, EachTextHasTheSizeAndWeightOfItsPen) {
    const auto pixels = [](const std::vector<std::pair<int, bool>>& looks) {
        Ground on;
        QPainter painter(&on.image);
        PainterSurface surface(painter);
        std::vector<int> counts;
        for (const auto& [size, bold] : looks) {
            on.image.fill(ground);
            surface.pen.FontSize = size;
            surface.pen.FontBold = bold;
            surface.print({8, 10}, "HM");
            int count = 0;
            for (int y = 0; y < 64; ++y)
                for (int x = 0; x < 64; ++x) count += on.at(x, y) != ground ? 1 : 0;
            counts.push_back(count);
        }
        return counts;
    };
    const std::vector<int> all = pixels({{8, false}, {12, false}, {8, true}, {8, false}});
    EXPECT_LT(all[0], all[1]);
    EXPECT_LT(all[0], all[2]);
    EXPECT_EQ(all[0], all[3]);
    EXPECT_EQ(pixels({{12, false}})[0], all[1]);
    EXPECT_EQ(pixels({{8, true}})[0], all[2]);
}

TEST_F(Pictures, DashesAreForPensOfOnePixel) {
    const auto black_pixels = [](int width) {
        Ground on;
        QPainter painter(&on.image);
        PainterSurface surface(painter);
        surface.pen.DrawStyle = 1;
        surface.pen.DrawWidth = width;
        surface.line({2, 32}, {60, 32});
        painter.end();
        int count = 0;
        for (int x = 2; x <= 60; ++x) count += on.at(x, 32) == qRgb(0, 0, 0) ? 1 : 0;
        return count;
    };
    EXPECT_LT(black_pixels(1), 55);
    EXPECT_EQ(black_pixels(3), 59);
}
