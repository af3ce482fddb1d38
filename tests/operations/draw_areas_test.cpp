#include "operations/draw_areas.h"

#include "operations/draw_ranges.h"
#include "tests/support/figures.h"
#include "tests/support/program_test.h"

namespace {

using Told = std::vector<std::string>;

std::shared_ptr<oCoordinates> vertex(int x, int y) {
    return std::make_shared<oCoordinates>(oCoordinates{x, y});
}

class Areas : public ProgramTest {
  protected:
    Areas() {
        unit = add_unit("{1}");
        unit->xcoord = 100;
        unit->ycoord = 200;
        unit->color = 77;
        for (const auto& [x, y] : {std::pair(-10, -10), {10, -10}, {0, 20}})
            unit->area_of_opeartion->add(vertex(x, y));
        add_unit("{2}")->area_of_opeartion->add(vertex(1, 1));
        program.campaign.colUnits->item("{2}")->area_of_opeartion->add(vertex(2, 2));
        program.campaign.curUnit = unit;
    }
    std::shared_ptr<oUnits> unit;
    Painting painting;
};

} // namespace

TEST_F(Areas, LieAroundTheirUnitMaskedInItsColour) {
    painting.map.pen.DrawWidth = 5;
    painting.map.pen.ForeColor = 0xFF0000;
    draw_all_aoo(program, painting);
    EXPECT_EQ(told(painting.map), Told{"polygon 90,190 110,190 100,220"}) << "two points are no area";
    EXPECT_EQ(told(painting.map.figures()[0].pen), "fore 0 fill 77 style 0 dash 0 width 1 mode 9");
}

TEST_F(Areas, FollowTheirUnitAndEveryChangeOfTheUnits) {
    const auto drawn = [&] {
        program.painting.map.clear();
        draw_all_aoo(program, program.painting);
        return told(program.painting.map);
    };
    program.painting.map.wanted = {0, 0, 1000, 1000};
    EXPECT_EQ(drawn(), Told{"polygon 90,190 110,190 100,220"});
    unit->xcoord = 300;
    EXPECT_EQ(drawn(), Told{"polygon 290,190 310,190 300,220"});
    unit->ycoord = 5000;
    EXPECT_EQ(drawn(), Told{}) << "out of view";
    program.campaign.colUnits->item("{2}")->area_of_opeartion->add(vertex(3, 3));
    EXPECT_EQ(drawn(), Told{"polygon 1,1 2,2 3,3"});
    program.campaign.colUnits->remove("{2}");
    EXPECT_EQ(drawn(), Told{});
    unit->ycoord = 200;
    program.campaign.colUnits.drop();
    EXPECT_EQ(drawn(), Told{});
    program.campaign.colUnits->add(unit, unit->ID);
    EXPECT_EQ(drawn(), Told{"polygon 290,190 310,190 300,220"});
}

TEST_F(Areas, OutOfViewLeavesItsPenAllTheSame) {
    painting.map.wanted = {5000, 5000, 6000, 6000};
    draw_all_aoo(program, painting);
    EXPECT_EQ(told(painting.map), Told{});
    EXPECT_EQ(painting.map.pen.FillColor, 77);
    EXPECT_EQ(painting.map.pen.DrawMode, 9);
}

TEST_F(Areas, OfTheUnitBeingDrawnForIsLeftOut) {
    program.main.drawing_aoo = true;
    program.campaign.colUnits->item("{2}")->area_of_opeartion->add(vertex(3, 3));
    draw_all_aoo(program, painting);
    EXPECT_EQ(told(painting.map), Told{"polygon 1,1 2,2 3,3"}) << "that of another unit stays";
}

TEST_F(Areas, GatesOfAllAreas) {
    EXPECT_TRUE(all_areas_are_shown(program));
    program.campaign.gDispAooAll = false;
    EXPECT_FALSE(all_areas_are_shown(program));
    program.campaign.gDispAooAll = true;
    program.campaign.gDispAoo = false;
    EXPECT_FALSE(all_areas_are_shown(program));
}

TEST_F(Areas, SelectedAreaNeedsOpenPanelOptionAndNoDrawing) {
    program.campaign.gDispAooSelected = true;
    EXPECT_FALSE(selected_area_is_shown(program)) << "no panel";
    program.main.picUnitInfo.visible = true;
    EXPECT_TRUE(selected_area_is_shown(program));
    draw_selected_aoo(program, painting);
    EXPECT_EQ(painting.map.figures().size(), 1U);
    program.main.drawing_aoo = true;
    EXPECT_FALSE(selected_area_is_shown(program));
    program.main.drawing_aoo = false;
    program.campaign.gDispAoo = false;
    EXPECT_FALSE(selected_area_is_shown(program));
    program.campaign.gDispAoo = true;
    program.campaign.gDispAooSelected = false;
    EXPECT_FALSE(selected_area_is_shown(program));
    program.campaign.gDispAooSelected = true;
    program.campaign.curUnit = nullptr;
    EXPECT_FALSE(selected_area_is_shown(program));
}

TEST_F(Areas, SelectedOneHasThePenOfAllAndTheDashesOfTheLayersBefore) {
    for (const auto draw : {draw_selected_aoo, draw_all_aoo}) {
        painting.map.clear();
        painting.map.pen = {.ForeColor = 0xFF0000, .FillStyle = 1, .DrawStyle = 2, .DrawWidth = 5};
        draw(program, painting);
        ASSERT_EQ(painting.map.figures().size(), 1U);
        EXPECT_EQ(told(painting.map.figures()[0].pen), "fore 0 fill 77 style 0 dash 2 width 1 mode 9");
    }
}

TEST_F(Areas, SelectedAreaOfTwoPointsIsNone) {
    program.campaign.curUnit = program.campaign.colUnits->item("{2}");
    draw_selected_aoo(program, painting);
    EXPECT_TRUE(painting.map.figures().empty());
}

TEST_F(Areas, BeingDrawnStaysOpen) {
    program.main.drawing_aoo = true;
    EXPECT_FALSE(area_is_being_drawn(program)) << "no rubber line";
    program.main.linTempLine.visible = true;
    EXPECT_TRUE(area_is_being_drawn(program));
    painting.map.pen.DrawWidth = 5;
    painting.map.pen.ForeColor = 77;
    draw_area_being_drawn(program, painting);
    EXPECT_EQ(told(painting.map), (Told{"line 90,190 110,190", "line 110,190 100,220"}));
    EXPECT_EQ(told(painting.map.figures()[0].pen), "fore 0 fill 0 style 1 dash 0 width 1 mode 13");
    unit->area_of_opeartion->remove_at(3);
    EXPECT_TRUE(area_is_being_drawn(program)) << "two points are one";
    unit->area_of_opeartion->remove_at(2);
    EXPECT_FALSE(area_is_being_drawn(program)) << "one point is no line";
}

TEST_F(Areas, MeasuredPathIsDrawnFromItsSecondPointOn) {
    program.main.checking_path_range = true;
    program.campaign.colPathPoints->add(vertex(1, 2));
    EXPECT_FALSE(path_is_measured(program));
    program.campaign.colPathPoints->add(vertex(3, 4));
    program.campaign.colPathPoints->add(vertex(5, 6));
    EXPECT_TRUE(path_is_measured(program));
    painting.map.pen.ForeColor = 77;
    draw_measured_path(program, painting);
    EXPECT_EQ(told(painting.map), (Told{"line 1,2 3,4", "line 3,4 5,6"}));
    EXPECT_EQ(told(painting.map.figures()[0].pen), "fore 0 fill 0 style 1 dash 0 width 2 mode 13");
}

TEST_F(Areas, RangeRingsStandAKilometreApartWithFourTextsEach) {
    program.main.showing_range_circles = true;
    EXPECT_FALSE(range_circles_are_shown(program));
    program.campaign.colCirclePoints->add(vertex(1000, 1200));
    EXPECT_TRUE(range_circles_are_shown(program));
    painting.map.pen.DrawMode = 9;
    painting.map.pen.ForeColor = 77;
    draw_all_range_circles(program, painting);
    for (const auto& figure : painting.map.figures()) {
        EXPECT_EQ(figure.pen.DrawMode, 13);
        EXPECT_EQ(figure.pen.ForeColor, 0);
    }
    const Told all = told(painting.map);
    ASSERT_EQ(all.size(), 51U);
    EXPECT_EQ(all[0], "circle 1000,1200 r3");
    EXPECT_EQ(Told(all.begin() + 6, all.begin() + 11),
              (Told{"circle 1000,1200 r300", "text 985,901 2 km", "text 1265,1190 2 km", "text 985,1483 2 km",
                    "text 704,1190 2 km"}));
    EXPECT_EQ(all[46], "circle 1000,1200 r1500");
    EXPECT_EQ(told(painting.map.figures()[0].pen), "fore 0 fill 255 style 0 dash 0 width 2 mode 13");
    EXPECT_EQ(painting.map.figures()[1].pen.FillStyle, 1);
    EXPECT_EQ(painting.map.figures()[2].pen.FontSize, 10);
    EXPECT_TRUE(painting.map.figures()[2].pen.FontBold);
    EXPECT_FALSE(painting.map.pen.FontBold);
}
