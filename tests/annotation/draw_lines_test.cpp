#include "annotation/draw_lines.h"

#include "annotation/draw_polygons.h"
#include "tests/support/figures.h"
#include "tests/support/program_test.h"

namespace {

using Told = std::vector<std::string>;

class Drawing : public ProgramTest {
  protected:
    static void add_vertices(CollectionRef<oCoordinates>& vertices,
                             const std::vector<std::pair<int, int>>& places) {
        for (const auto& [x, y] : places) vertices->add(std::make_shared<oCoordinates>(oCoordinates{x, y}));
    }

    std::shared_ptr<oLines> add_line(const std::vector<std::pair<int, int>>& places) {
        auto line = std::make_shared<oLines>();
        line->linecolor = 77;
        line->linestyle = 1;
        line->linewidth = 1;
        add_vertices(line->colCoords, places);
        program.campaign.colLines->add(line);
        return line;
    }

    std::shared_ptr<oPolygons> add_polygon(const std::vector<std::pair<int, int>>& places) {
        auto polygon = std::make_shared<oPolygons>();
        polygon->ID = "{P" + std::to_string(program.campaign.colPolygons.count()) + "}";
        polygon->bordercolor = 11;
        polygon->borderwidth = 3;
        polygon->fillcolor = 22;
        polygon->drawmode = 9;
        polygon->fontcolor = 33;
        add_vertices(polygon->coordinates, places);
        program.campaign.colPolygons->add(polygon, polygon->ID);
        return polygon;
    }

    Painting painting;
};

} // namespace

TEST_F(Drawing, LineOfOnePointIsNotDrawnAndLeavesThePen) {
    add_line({{1, 2}});
    painting.map.pen.ForeColor = 5;
    draw_lines(program, painting);
    EXPECT_TRUE(painting.map.figures().empty());
    EXPECT_EQ(painting.map.pen.ForeColor, 5);
}

TEST_F(Drawing, SegmentsHaveTheLinesPenWhateverTheLineOptionSays) {
    program.campaign.gDispLines = false;
    EXPECT_FALSE(there_are_lines(program));
    const auto line = add_line({{1, 2}, {3, 4}, {5, 6}});
    EXPECT_TRUE(there_are_lines(program));
    line->linestyle = 5;
    line->linewidth = 4;
    draw_lines(program, painting);
    EXPECT_EQ(told(painting.map), (Told{"line 1,2 3,4", "line 3,4 5,6"}));
    EXPECT_EQ(told(painting.map.figures()[0].pen), "fore 77 fill 0 style 1 dash 4 width 4 mode 13");
}

TEST_F(Drawing, SolidLineBehindADashedOneIsSolidAndKeepsTheMode) {
    add_line({{1, 2}, {3, 4}})->linestyle = 3;
    add_line({{1, 2}, {3, 4}});
    painting.map.pen.DrawMode = 9;
    draw_lines(program, painting);
    EXPECT_EQ(painting.map.figures()[0].pen.DrawStyle, 2);
    EXPECT_EQ(painting.map.figures()[1].pen.DrawStyle, 0);
    for (const auto& figure : painting.map.figures()) EXPECT_EQ(figure.pen.DrawMode, 9);
}

TEST_F(Drawing, StylesThatNobodyCanChooseAreSolid) {
    for (const int style : {0, -1, 6, 1}) {
        add_line({{1, 2}, {3, 4}})->linestyle = static_cast<std::int16_t>(style);
        draw_lines(program, painting);
        EXPECT_EQ(painting.map.figures().back().pen.DrawStyle, 0) << style;
    }
}

TEST_F(Drawing, ArrowheadIsTwoSolidStrokesFromTheStoredBarbs) {
    const auto line = add_line({{0, 0}, {100, 0}});
    line->is_arrow = true;
    line->linestyle = 3;
    line->arrow1_x = 90;
    line->arrow1_y = -6;
    line->arrow2_x = 90;
    line->arrow2_y = 5;
    draw_lines(program, painting);
    EXPECT_EQ(told(painting.map), (Told{"line 0,0 100,0", "line 90,-6 100,0", "line 90,5 100,0"}));
    EXPECT_EQ(painting.map.figures()[0].pen.DrawStyle, 2);
    EXPECT_EQ(painting.map.figures()[1].pen.DrawStyle, 0);
}

TEST_F(Drawing, LastLineShowsNoArrowheadWhileItIsOpen) {
    add_line({{0, 0}, {10, 0}})->is_arrow = true;
    add_line({{0, 0}, {10, 0}})->is_arrow = true;
    program.main.drawing_lines = true;
    draw_lines(program, painting);
    EXPECT_EQ(painting.map.figures().size(), 4U) << "the earlier one keeps its own";
    painting.map.clear();
    program.main.line_ended = true;
    draw_lines(program, painting);
    EXPECT_EQ(painting.map.figures().size(), 6U);
}

TEST_F(Drawing, LinesOfOnePointCountAsTheLastToo) {
    add_line({{0, 0}, {10, 0}})->is_arrow = true;
    add_line({{0, 0}});
    program.main.drawing_lines = true;
    draw_lines(program, painting);
    EXPECT_EQ(painting.map.figures().size(), 3U);
}

TEST_F(Drawing, BoundaryIsDrawnAsStrokes) {
    const auto line = add_line({{0, 0}, {100, 0}});
    line->is_boundry = true;
    line->boundry_size = "Company";
    draw_lines(program, painting);
    EXPECT_EQ(told(painting.map), (Told{"line 0,0 38,0", "line 50,7 50,-7", "line 62,0 100,0"}));
}

TEST_F(Drawing, ArrowOnABoundaryEndsWhereThePlainLineBeforeItEnds) {
    add_line({{0, 0}, {30, 40}});
    const auto boundary = add_line({{0, 0}, {100, 0}});
    boundary->is_boundry = true;
    boundary->is_arrow = true;
    draw_lines(program, painting);
    EXPECT_EQ(told(painting.map).back(), "line 0,0 30,40");
}

TEST_F(Drawing, ArrowOnABoundaryWithoutAPlainLineBeforeItEndsAtTheMapsCorner) {
    add_line({{30, 40}}); // of one point: no line
    const auto boundary = add_line({{50, 50}, {100, 50}});
    boundary->is_boundry = true;
    boundary->is_arrow = true;
    draw_lines(program, painting);
    EXPECT_EQ(told(painting.map).back(), "line 0,0 0,0");
    boundary->arrow2_x = 7;
    painting.map.clear();
    draw_lines(program, painting);
    EXPECT_EQ(told(painting.map).back(), "line 7,0 0,0");
}

TEST_F(Drawing, OverviewLinesArePlainThinAndScaledByTheWidths) {
    const auto line = add_line({{0, 0}, {240, 480}});
    line->is_boundry = true;
    line->linewidth = 9;
    line->linestyle = 2;
    add_line({{0, 0}});
    draw_overview_lines(program, painting);
    EXPECT_EQ(told(painting.overview), Told{"line 0,0 10,20"});
    EXPECT_EQ(told(painting.overview.figures()[0].pen), "fore 77 fill 0 style 1 dash 1 width 1 mode 13");
}

TEST_F(Drawing, OverviewLinesFollowEachChange) {
    add_line({{0, 0}, {240, 480}});
    const auto second = add_line({{0, 0}, {480, 0}});
    const auto shown = [&] {
        painting.overview.clear();
        draw_overview_lines(program, painting);
        return told(painting.overview);
    };
    EXPECT_EQ(shown(), (Told{"line 0,0 10,20", "line 0,0 20,0"}));
    const auto kept = painting.overview_lines.figures;
    add_polygon({{0, 0}, {10, 0}});
    EXPECT_EQ(shown(), (Told{"line 0,0 10,20", "line 0,0 20,0"}));
    EXPECT_EQ(painting.overview_lines.figures, kept) << "the same list as long as it shows the same";
    second->colCoords->at(2)->y_cor = 240;
    EXPECT_EQ(shown().back(), "line 0,0 20,10");
    second->linecolor = 5;
    second->linestyle = 3;
    EXPECT_EQ(shown().size(), 2U);
    EXPECT_EQ(painting.overview.figures()[1].pen.ForeColor, 5);
    EXPECT_EQ(painting.overview.figures()[1].pen.DrawStyle, 2);
    painting.overview.pen.DrawMode = 9;
    EXPECT_EQ(shown().size(), 2U);
    EXPECT_EQ(painting.overview.figures()[0].pen.DrawMode, 9) << "of a fan before them";
    EXPECT_EQ(painting.overview.pen.ForeColor, 5) << "what the last line leaves";
    program.campaign.colLines->remove_at(1);
    EXPECT_EQ(shown(), Told{"line 0,0 20,10"});
    program.main.picMap.width *= 2;
    EXPECT_EQ(shown(), Told{"line 0,0 10,5"});
}

TEST_F(Drawing, ArrowOutOfViewLeavesItsPen) {
    const auto line = add_line({{5000, 5000}, {5100, 5000}});
    line->is_arrow = true;
    line->arrow1_x = line->arrow1_y = line->arrow2_x = line->arrow2_y = 5000;
    line->linestyle = 2;
    painting.map.wanted = {0, 0, 100, 100};
    draw_lines(program, painting);
    EXPECT_TRUE(painting.map.empty());
    EXPECT_EQ(painting.map.pen.DrawStyle, 0);
    EXPECT_EQ(painting.map.pen.DrawWidth, line->linewidth);
}

TEST_F(Drawing, PolygonOfTwoPointsIsNotDrawn) {
    add_polygon({{0, 0}, {10, 0}});
    draw_polygons(program, painting);
    EXPECT_TRUE(painting.map.figures().empty());
}

TEST_F(Drawing, PolygonHasItsPenAndItsNoteAboutTheMiddle) {
    add_polygon({{0, 0}, {100, 0}, {100, 50}})->notes = "Objective";
    draw_polygons(program, painting);
    EXPECT_EQ(told(painting.map), (Told{"polygon 0,0 100,0 100,50", "text 27.5,20 Objective"}));
    EXPECT_EQ(told(painting.map.figures()[0].pen), "fore 11 fill 22 style 0 dash 0 width 3 mode 9");
    EXPECT_EQ(painting.map.figures()[1].pen.ForeColor, 33);
}

TEST_F(Drawing, PolygonLeavesItsModeAndItsPen) {
    add_polygon({{0, 0}, {100, 0}, {100, 50}});
    draw_polygons(program, painting);
    EXPECT_EQ(told(painting.map.pen), "fore 11 fill 22 style 0 dash 0 width 3 mode 9");
}

TEST_F(Drawing, PolygonHasTheDashesAndLettersOfTheLayersBefore) {
    add_polygon({{100, 200}, {200, 200}, {200, 260}})->notes = "ab";
    painting.map.pen.DrawStyle = 2;
    painting.map.pen.FontSize = 10;
    painting.map.pen.FontBold = true;
    draw_polygons(program, painting);
    EXPECT_EQ(told(painting.map), (Told{"polygon 100,200 200,200 200,260", "text 145,225 ab"}));
    for (const auto& figure : painting.map.figures()) {
        EXPECT_EQ(figure.pen.DrawStyle, 2);
        EXPECT_EQ(figure.pen.FontSize, 10);
        EXPECT_TRUE(figure.pen.FontBold);
    }
}

TEST_F(Drawing, OpaquePolygonCopies) {
    add_polygon({{0, 0}, {100, 0}, {100, 50}})->drawmode = 13;
    add_polygon({{0, 0}, {100, 0}, {100, 50}})->drawmode = 0;
    painting.map.pen.DrawMode = 9;
    draw_polygons(program, painting);
    for (const auto& figure : painting.map.figures()) EXPECT_EQ(figure.pen.DrawMode, 13);
}

TEST_F(Drawing, PolygonsAreGatedByTheirOption) {
    EXPECT_TRUE(polygons_are_shown(program));
    program.campaign.gDispPolygons = false;
    EXPECT_FALSE(polygons_are_shown(program));
}

TEST_F(Drawing, PolygonInHandShowsItsSidesFromTheSecondPointOn) {
    program.main.drawing_polygon = true;
    EXPECT_FALSE(polygon_is_being_drawn(program)) << "before its first point there is none";
    program.campaign.curPolygon = std::make_shared<oPolygons>();
    program.main.picPolygonBordercolor.back_colour = 44;
    program.main.scrlPolygonBorderthickness.value = 6;
    add_vertices(program.campaign.curPolygon->coordinates, {{0, 0}});
    EXPECT_FALSE(polygon_is_being_drawn(program));
    add_vertices(program.campaign.curPolygon->coordinates, {{10, 0}, {10, 10}});
    EXPECT_TRUE(polygon_is_being_drawn(program));
    draw_polygon_being_drawn(program, painting);
    EXPECT_EQ(told(painting.map), (Told{"line 0,0 10,0", "line 10,0 10,10"}));
    EXPECT_EQ(told(painting.map.figures()[0].pen), "fore 44 fill 0 style 1 dash 0 width 6 mode 13");
    EXPECT_EQ(told(painting.map.pen), "fore 0 fill 0 style 1 dash 0 width 1 mode 13");
    program.main.drawing_polygon = false;
    EXPECT_FALSE(polygon_is_being_drawn(program));
}
