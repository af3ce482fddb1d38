#include "mapview/map_layers_window.h"

#include "mapview/painting.h"
#include "program/paint_order.h"
#include "tools/support/quiet_platform.h"
#include "tools/support/spread_campaign.h"
#include "widgets/map_image.h"
#include "widgets/painter_surface.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

constexpr int side = 3000;
constexpr int view_size = 600;

/// A program with a plain map, looked at through a view of 600 pixels.
class Layers : public testing::Test {
  protected:
    Layers() {
        QImage picture(side, side, QImage::Format_RGB888);
        picture.fill(QColor(200, 210, 190));
        program.main.picMap.picture = std::make_shared<MapImage>(picture, QImage(), QImage());
        program.main.picMap.width = program.main.picMap.height = side;
        program.main.picMapwindow.width = program.main.picMapwindow.height = view_size + 4;
    }

    QImage at(int left, int top) {
        program.main.picMap.left = -left;
        program.main.picMap.top = -top;
        return layers.image(program, QRect(left, top, view_size, view_size), 1).copy();
    }

    /// All figures of the last paint, none passed over.
    QImage drawn_bare(int left, int top) const {
        QImage image(view_size, view_size, QImage::Format_RGB32);
        image.fill(QColor(200, 210, 190));
        QPainter painter(&image);
        painter.translate(-left, -top);
        PainterSurface surface(painter);
        program.painting.map.replay(surface);
        return image;
    }

    static int different_pixels(const QImage& a, const QImage& b) {
        int count = 0;
        for (int y = 0; y < a.height(); ++y)
            for (int x = 0; x < a.width(); ++x) count += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
        return count;
    }

    QuietPlatform platform;
    Program program{platform, paint_order()};
    MapLayers layers;
};

} // namespace

TEST_F(Layers, PassingOverWhatIsOutOfViewChangesNoPixel) {
    for (unsigned seed = 1; seed <= 6; ++seed) {
        program.campaign.colUnits.drop();
        program.campaign.colPolygons.drop();
        program.campaign.colFireMissions.drop();
        spread_over_map(program, {30, 20, 10, 10, seed}, {});
        program.campaign.gDispUSZFilled = seed % 2 == 0;
        const int left = 200 + static_cast<int>(seed) * 150;
        const Pens before = program.painting.pens();
        at(left, 700);
        program.painting.set_pens(before);
        picMap_Paint(program);
        const QImage in_view = at(left, 700);
        const Pens after = program.painting.pens();

        program.main.picMap.left = program.main.picMap.top = 40000;
        program.main.picMapwindow.width = program.main.picMapwindow.height = 120000;
        program.painting.set_pens(before);
        picMap_Paint(program);
        EXPECT_EQ(program.painting.pens(), after);
        const QImage everything = drawn_bare(left, 700);
        program.main.picMapwindow.width = program.main.picMapwindow.height = view_size + 4;
        // A line is cut at the edge of what it is painted on, so that a pixel of it can differ there.
        EXPECT_LT(different_pixels(in_view, everything), view_size * view_size / 2000) << seed;
    }
}

TEST_F(Layers, HatchesStayOnTheMapWhenTheViewScrolls) {
    auto unit = std::make_shared<oUnits>();
    unit->ID = "{1}";
    unit->echelon = "Battalion";
    unit->color = 255;
    unit->xcoord = unit->ycoord = 800;
    program.campaign.colUnits->add(unit, unit->ID);
    unit->affiliation = "Axis";
    unit->img_index = 0;
    auto gun = std::make_shared<oForceElements>();
    gun->force_type = 4;
    gun->max_range = 1000;
    program.campaign.colForceElements->add(gun, " 1");
    auto guns = std::make_shared<oUnitForceElements>();
    guns->Index = 1;
    unit->force_elements->add(guns, "{G}");
    program.campaign.gDispUSZ = program.campaign.gDispUSZAll = true;
    program.campaign.gDispUSZFilled = false; // two hatches, and a fan with a third one
    program.campaign.gDispFirefans = true;
    picMap_Paint(program);
    ASSERT_EQ(program.painting.map.figures().size(), 3U);
    for (const auto& figure : program.painting.map.figures()) EXPECT_GT(figure.pen.FillStyle, 1);
    const QImage first = at(500, 500);
    const QImage scrolled = at(503, 505);
    EXPECT_GT(different_pixels(first, scrolled), 1000) << "the picture has moved";
    const QRect common(5, 5, view_size - 20, view_size - 20);
    EXPECT_EQ(different_pixels(first.copy(common.translated(3, 5)), scrolled.copy(common)), 0);
}

TEST_F(Layers, DashesStayOnTheMapWhenTheViewScrolls) {
    auto line = std::make_shared<oLines>();
    line->linestyle = 2;
    line->linewidth = 1;
    line->colCoords->add(std::make_shared<oCoordinates>(oCoordinates{0, 600}));
    line->colCoords->add(std::make_shared<oCoordinates>(oCoordinates{2900, 600}));
    program.campaign.colLines->add(line);
    picMap_Paint(program);
    const QImage first = at(500, 500);
    const QImage scrolled = at(503, 500);
    for (int x = 0; x < view_size - 3; ++x) EXPECT_EQ(first.pixel(x + 3, 100), scrolled.pixel(x, 100)) << x;
    EXPECT_NE(first.pixel(504, 100), qRgb(0, 0, 0)) << "1004 is in the gap before 1008";
    EXPECT_EQ(first.pixel(508, 100), qRgb(0, 0, 0)) << "the forty-third dash";
}

TEST_F(Layers, MaskLeavesTheMapReadable) {
    auto unit = std::make_shared<oUnits>();
    unit->ID = "{1}";
    unit->echelon = "Battalion";
    unit->color = 0xF0; // red
    unit->xcoord = unit->ycoord = 800;
    program.campaign.colUnits->add(unit, unit->ID);
    program.campaign.gDispUSZ = program.campaign.gDispUSZAll = program.campaign.gDispUSZFilled = true;
    picMap_Paint(program);
    EXPECT_EQ(at(500, 500).pixel(300, 300), qRgb(200 & 0xF0, 0, 0));
    EXPECT_EQ(at(500, 500).pixel(1, 1), qRgb(200, 210, 190));
}

TEST_F(Layers, ArePaintedAgainOnlyForAnotherPlaceSizeOrPaint) {
    picMap_Paint(program);
    program.main.picMap.left = -100;
    const QRect part(100, 0, view_size, view_size);
    const uchar* const bits = layers.image(program, part, 1).constBits();
    program.campaign.gShowGrid = true; // without a refresh
    EXPECT_EQ(layers.image(program, part, 1).constBits(), bits);
    EXPECT_EQ(layers.image(program, part, 1).pixel(50, 50), qRgb(200, 210, 190));
    picMap_Paint(program);
    EXPECT_NE(layers.image(program, part, 1).pixel(50, 50), qRgb(200, 210, 190)) << "a line of the grid";
    EXPECT_EQ(layers.image(program, part, 2).size(), QSize(2 * view_size, 2 * view_size));
}

TEST_F(Layers, DashedOutlinesStayOnTheMapWhenTheViewScrolls) {
    auto line = std::make_shared<oLines>(); // the last line's dashes go on to the areas
    line->linestyle = 2;
    line->linewidth = 1;
    for (const int x : {2900, 2990})
        line->colCoords->add(std::make_shared<oCoordinates>(oCoordinates{x, 2990}));
    program.campaign.colLines->add(line);
    auto unit = std::make_shared<oUnits>();
    unit->ID = "{1}";
    unit->color = 0xFFFFFF;
    unit->xcoord = unit->ycoord = 800;
    for (const auto& [x, y] : {std::pair(-500, -100), {450, -100}, {450, 400}, {-500, 400}})
        unit->area_of_opeartion->add(std::make_shared<oCoordinates>(oCoordinates{x, y}));
    program.campaign.colUnits->add(unit, unit->ID);
    picMap_Paint(program);
    const QImage first = at(500, 500);
    const QImage scrolled = at(503, 507);
    const QRect common(5, 5, view_size - 20, view_size - 20);
    EXPECT_EQ(different_pixels(first.copy(common.translated(3, 7)), scrolled.copy(common)), 0);
    EXPECT_GT(different_pixels(first, scrolled), 100);
}
