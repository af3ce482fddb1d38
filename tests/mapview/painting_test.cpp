#include "mapview/painting.h"

#include "mapview/frmEnterCoord.h"
#include "mapview/grid.h"
#include "mapview/hit_target.h"
#include "mapview/unit_marker.h"
#include "tests/support/program_test.h"

#include <array>

namespace {

using Figure = DrawingList::Figure;

class MapPainting : public ProgramTest {
  protected:
    void map_size(double width, double height) {
        program.main.picMap.width = width;
        program.main.picMap.height = height;
    }

    std::vector<std::string> texts(const DrawingList& list) const {
        std::vector<std::string> all;
        for (const Figure& figure : list.figures()) all.push_back(figure.text);
        return all;
    }
};

/// Layers that only tell that they were painted.
std::vector<int> painted;
bool open_gate(const Program& /*program*/) { return true; }
bool closed_gate(const Program& /*program*/) { return false; }
void first_layer(Program& /*program*/, Painting& painting) {
    painted.push_back(1);
    painting.map.pen.DrawMode = 9;
    painting.map.circle({10, 10}, 5);
}
void second_layer(Program& /*program*/, Painting& painting) {
    painted.push_back(2);
    painting.map.line({0, 0}, {5, 5});
}
void failing_layer(Program& /*program*/, Painting& /*painting*/) { throw Failure{11}; }

constexpr std::array<PaintLayer, 3> layers{
    {{1, open_gate, first_layer}, {2, closed_gate, failing_layer}, {3, open_gate, second_layer}}};
constexpr std::array<PaintLayer, 3> broken{
    {{1, open_gate, first_layer}, {2, open_gate, failing_layer}, {3, open_gate, second_layer}}};

} // namespace

TEST_F(MapPainting, LayersOfOpenGatesArePaintedInOrderWithThePenAsItWasLeft) {
    painted.clear();
    program.paint_order = layers;
    picMap_Paint(program);
    EXPECT_EQ(painted, (std::vector<int>{1, 2}));
    const auto& figures = program.painting.map.figures();
    ASSERT_EQ(figures.size(), 2U);
    EXPECT_EQ(figures[1].kind, DrawingList::Kind::line);
    EXPECT_EQ(figures[1].pen.DrawMode, 9);
}

TEST_F(MapPainting, NextPaintStartsWithThePenThatTheLastOneLeft) {
    program.paint_order = layers;
    picMap_Paint(program);
    program.paint_order = std::span<const PaintLayer>(layers).subspan(2);
    picMap_Paint(program);
    ASSERT_EQ(program.painting.map.figures().size(), 1U);
    EXPECT_EQ(program.painting.map.figures()[0].pen.DrawMode, 9);
}

TEST_F(MapPainting, FailureLeavesOutTheLayersBehindItAndIsToldOnce) {
    program.paint_order = broken;
    picMap_Paint(program);
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error 11 when updating the map."});
    EXPECT_EQ(program.painting.map.figures().size(), 1U);
}

TEST_F(MapPainting, AllRefreshesOfOneEventAreOnePaint) {
    painted.clear();
    program.paint_order = layers;
    program.main.picMap.Refresh();
    program.main.picMap.Refresh();
    paint_if_marked(program);
    paint_if_marked(program);
    EXPECT_EQ(painted.size(), 2U);
}

TEST_F(MapPainting, MessageOfAFailedPaintIsToldOnceWhateverHappensMeanwhile) {
    program.campaign.curUnit = add_unit("{1}", "{gone}");
    program.main.hierarchy_on = true;
    program.main.picMap.Refresh();
    platform.on_message = [this](const MessageBox& /*box*/) {
        if (platform.messages.size() < 5) paint_if_marked(program); // a timer ticks under the open box
    };
    EXPECT_TRUE(paint_if_marked(program));
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error 5 when updating the map."});
}

TEST_F(MapPainting, FailureOfAnEarlyLayerLeavesRulersAndOverviewAsTheyWere) {
    program.main.mnuOVPU_showlines.checked = true;
    auto line = std::make_shared<oLines>();
    for (const int x : {100, 2000})
        line->colCoords->add(std::make_shared<oCoordinates>(oCoordinates{x, 100}));
    program.campaign.colLines->add(line);
    picMap_Paint(program);
    const std::size_t numbers = program.painting.hcoord.figures().size();
    program.campaign.curUnit = add_unit("{1}", "{gone}");
    program.main.hierarchy_on = true;
    picMap_Paint(program);
    EXPECT_GT(numbers, 0U);
    EXPECT_EQ(program.painting.hcoord.figures().size(), numbers);
    EXPECT_EQ(program.painting.overview.figures().size(), 1U);
    EXPECT_TRUE(program.painting.map.empty());
}

TEST_F(MapPainting, PenResetIsThatOfGridAndLines) {
    Painting painting;
    painting.map.pen = {1, 2, 3, 4, 5, 9, 10, true};
    reset_pen(program, painting);
    EXPECT_EQ(painting.map.pen, (Pen{0xC00000, 2, 3, 0, 1, 9, 10, true}));
}

TEST_F(MapPainting, GridLinesCrossTheWholeMap) {
    map_size(1200, 1050);
    program.campaign.gShowGrid = true;
    picMap_Paint(program);
    const auto& figures = program.painting.map.figures();
    ASSERT_EQ(figures.size(), 15U);
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(figures[static_cast<std::size_t>(i)].points,
                  (std::vector<Point>{{150.0 * i + 150, 0}, {150.0 * i + 150, 1050}}));
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(figures[static_cast<std::size_t>(9 + i)].points,
                  (std::vector<Point>{{0, 150.0 * i + 102}, {1200, 150.0 * i + 102}}));
    EXPECT_EQ(figures[0].pen.ForeColor, 0xC00000);
}

TEST_F(MapPainting, GridButtonTogglesAndRefreshes) {
    cmdGrid_Click(program);
    EXPECT_TRUE(program.campaign.gShowGrid);
    EXPECT_TRUE(program.main.cmdGrid.on());
    EXPECT_TRUE(program.main.picMap.marked);
    program.main.picMap.marked = false;
    cmdGrid_Click(program);
    EXPECT_FALSE(program.campaign.gShowGrid);
    EXPECT_TRUE(program.main.picMap.marked);
    picMap_Paint(program);
    EXPECT_TRUE(program.painting.map.figures().empty());
}

TEST_F(MapPainting, RulersCountEastwardsAndNorthwards) {
    map_size(1200, 1050);
    picMap_Paint(program);
    const auto& east = program.painting.hcoord.figures();
    ASSERT_EQ(east.size(), 8U);
    EXPECT_EQ(east[0].text, "01");
    EXPECT_EQ(east[0].points[0], (Point{144, -2}));
    EXPECT_EQ(east[7].text, "08");
    EXPECT_EQ(east[7].points[0], (Point{1194, -2}));
    const auto& north = program.painting.vcoord.figures();
    ASSERT_EQ(north.size(), 6U);
    EXPECT_EQ(north[0].text, "06");
    EXPECT_EQ(north[0].points[0], (Point{-1, 96}));
    EXPECT_EQ(north[5].text, "01");
    EXPECT_EQ(north[5].points[0], (Point{-1, 846}));
    EXPECT_EQ(north[0].pen.ForeColor, 0xC00000);
    EXPECT_EQ(north[0].pen.FontSize, 10);
    EXPECT_TRUE(north[0].pen.FontBold);
}

TEST_F(MapPainting, GridTakesTheModeOfTheLayersBefore) {
    Painting painting;
    painting.map.pen.DrawMode = 9;
    draw_grid(program, painting);
    ASSERT_FALSE(painting.map.figures().empty());
    EXPECT_EQ(painting.map.figures()[0].pen.DrawMode, 9);
}

TEST_F(MapPainting, UpperRulerShowsTheLastTwoDigits) {
    map_size(1200, 1050);
    program.campaign.gMapEast0 = 98;
    picMap_Paint(program);
    const std::vector<std::string> east = texts(program.painting.hcoord);
    EXPECT_EQ(std::vector<std::string>(east.begin(), east.begin() + 3),
              (std::vector<std::string>{"99", "00", "01"}));
}

TEST_F(MapPainting, GridAndUpperRulerRoundTheSizeToo) {
    map_size(1290, 1130); // 8.6 and 7.53 kilometres
    program.main.picMapwindow.width = program.main.picMapwindow.height = 2000;
    program.campaign.gShowGrid = true;
    program.campaign.gMapEast0 = 3;
    picMap_Paint(program);
    EXPECT_EQ(program.painting.map.figures().size(), 10U + 7U);
    const auto& east = program.painting.hcoord.figures();
    ASSERT_EQ(east.size(), 9U);
    EXPECT_EQ(east[0].text, "04");
    EXPECT_EQ(east[0].pen.ForeColor, 0xC00000);
    EXPECT_EQ(east[0].pen.FontSize, 10);
    EXPECT_TRUE(east[0].pen.FontBold);
}

TEST_F(MapPainting, ClosedDialogIsOneRefresh) {
    program.form<frmEnterCoord>().show_modal();
    EXPECT_TRUE(program.main.picMap.marked);
}

TEST_F(MapPainting, MessageOfAPaintDoesNotAskForTheNext) {
    program.paint_order = broken;
    platform.on_message = [&](const MessageBox&) { program.main.picMap.Refresh(); };
    program.main.picMap.Refresh();
    EXPECT_TRUE(paint_if_marked(program));
    EXPECT_FALSE(paint_if_marked(program));
}

TEST_F(MapPainting, RulersAreDrawnAnewByEachPaint) {
    map_size(1200, 1050);
    picMap_Paint(program);
    picMap_Paint(program);
    EXPECT_EQ(program.painting.hcoord.figures().size(), 8U);
}

TEST_F(MapPainting, RulersRoundTheHeightHalfToEven) {
    for (const auto& [height, first] :
         std::vector<std::pair<int, std::string>>{{6075, "39"}, {6225, "41"}, {15150, "00"}}) {
        map_size(1200, height);
        picMap_Paint(program);
        EXPECT_EQ(program.painting.vcoord.figures().at(0).text, first) << height;
    }
}

TEST_F(MapPainting, TopmostVisibleControlIsHit) {
    oUnits lower;
    lower.ID = "low";
    lower.xcoord = lower.ycoord = 100;
    oUnits upper = lower;
    upper.ID = "high";
    make_unit_marker(program, lower);
    make_unit_marker(program, upper);
    EXPECT_EQ(hit_target(program, 100, 100).index, 2);
    program.main.imgUnit(2).visible = false;
    EXPECT_EQ(hit_target(program, 100, 100).index, 1);
    program.main.bring_to_front(program.main.lblUser.load(1));
    MapLabel& label = program.main.lblUser(1);
    label.left = label.top = 90;
    label.width = label.height = 20;
    label.visible = true;
    EXPECT_EQ(hit_target(program, 100, 100).kind, TargetKind::label);
    EXPECT_EQ(hit_target(program, 500, 500).kind, TargetKind::map);
    program.main.imgUnit(1).container = Container::tray;
    EXPECT_EQ(hit_target(program, 87, 87).kind, TargetKind::map);
}

TEST(DrawingList, ReplaysOnlyWhatCanTouchTheWantedArea) {
    DrawingList list;
    list.line({0, 0}, {10, 0});
    list.pen.DrawWidth = 20;
    list.line({0, 115}, {10, 115});
    list.circle({500, 500}, 300);
    list.polygon({{1000, 1000}, {1100, 1000}, {1050, 1100}});
    list.print({0, 0}, "text");
    list.pie({2000, 2000}, 10, 0, 1);
    DrawingList shown;
    shown.wanted = {0, 0, 100, 100};
    list.replay(shown);
    ASSERT_EQ(shown.figures().size(), 3U);
    EXPECT_EQ(shown.figures()[1].pen.DrawWidth, 20) << "its width reaches into the area";
    DrawingList all;
    list.replay(all);
    ASSERT_EQ(all.figures().size(), 6U);
    EXPECT_EQ(all.figures()[5].end, 1);
    EXPECT_EQ(all.pen, list.pen);
}
