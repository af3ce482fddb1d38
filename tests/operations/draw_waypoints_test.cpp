#include "operations/draw_waypoints.h"

#include "tests/support/figures.h"
#include "tests/support/program_test.h"

namespace {

using Told = std::vector<std::string>;

class Waypoints : public ProgramTest {
  protected:
    Waypoints() {
        unit = add_unit("{1}");
        unit->xcoord = 100;
        unit->ycoord = 100;
        unit->color = 77;
        add_waypoint(300, 100);
        add_waypoint(300, 250);
        add_unit("{2}");
        program.campaign.curUnit = unit;
    }

    void add_waypoint(float x, float y, std::int16_t range = 1000, double speed = 4) {
        auto waypoint = std::make_shared<oWaypoint>();
        waypoint->ID = "{W" + std::to_string(unit->waypoints.count()) + "}";
        waypoint->X = x;
        waypoint->Y = y;
        waypoint->end_month = "November";
        waypoint->end_day = "25";
        waypoint->end_hour = "09";
        waypoint->end_minute = "30";
        waypoint->range = range;
        waypoint->speed = speed;
        waypoint->notes = "halt";
        unit->waypoints->add(waypoint, waypoint->ID);
    }

    std::shared_ptr<oUnits> unit;
    Painting painting;
};

} // namespace

TEST_F(Waypoints, RouteThenDotsEachWithItsThreeTexts) {
    painting.map.pen.FillColor = 99;
    draw_waypoints(program, painting);
    EXPECT_EQ(told(painting.map),
              (Told{"line 100,100 300,100", "line 300,100 300,250", "circle 300,100 r3",
                    "text 240,108 November 25, 09:30", "text 240,120 1.00 Km, at 4 Km/H", "text 240,132 halt",
                    "circle 300,250 r3", "text 240,258 November 25, 09:30", "text 240,270 1.00 Km, at 4 Km/H",
                    "text 240,282 halt"}));
    const auto& figures = painting.map.figures();
    EXPECT_EQ(told(figures[0].pen), "fore 77 fill 99 style 1 dash 0 width 3 mode 13");
    EXPECT_EQ(told(figures[2].pen), "fore 0 fill 0 style 0 dash 0 width 1 mode 13");
    EXPECT_TRUE(figures[3].pen.FontBold);
    EXPECT_EQ(painting.map.pen.FillStyle, 1);
}

TEST_F(Waypoints, OutOfViewLeaveTheirPenAllTheSame) {
    painting.map.wanted = {5000, 5000, 6000, 6000};
    painting.map.pen.FillColor = 99;
    painting.map.pen.FillStyle = 0;
    painting.map.pen.ForeColor = 99;
    painting.map.pen.DrawWidth = 5;
    draw_waypoints(program, painting);
    EXPECT_EQ(told(painting.map), Told{});
    EXPECT_EQ(told(painting.map.pen), "fore 0 fill 0 style 1 dash 0 width 1 mode 13");
    EXPECT_TRUE(painting.map.pen.FontBold);
}

TEST_F(Waypoints, FarFromAUnitInViewItsRouteIsSeenToSetOut) {
    unit->waypoints.drop();
    add_waypoint(9000, 8000);
    painting.map.wanted = {0, 0, 500, 500};
    draw_waypoints(program, painting);
    EXPECT_EQ(told(painting.map), Told{"line 100,100 9000,8000"});
}

TEST_F(Waypoints, WithoutDataOnlyRouteAndDots) {
    program.campaign.gDispWayptData = false;
    draw_waypoints(program, painting);
    EXPECT_EQ(told(painting.map), (Told{"line 100,100 300,100", "line 300,100 300,250", "circle 300,100 r3",
                                        "circle 300,250 r3"}));
}

TEST_F(Waypoints, OfAllUnitsSetCopyModeEvenWhenThereAreNone) {
    unit->waypoints.drop();
    painting.map.pen.DrawMode = 9;
    draw_waypoints(program, painting);
    EXPECT_EQ(painting.map.pen.DrawMode, 13);
    EXPECT_TRUE(painting.map.figures().empty());
}

TEST_F(Waypoints, OfTheSelectedUnitInheritTheDrawMode) {
    program.campaign.gDispWayptAll = false;
    program.campaign.gDispWayptSelected = true;
    program.campaign.colUnits->item("{2}")->waypoints->add(std::make_shared<oWaypoint>(), "{W}");
    painting.map.pen.DrawMode = 9;
    draw_waypoints(program, painting);
    EXPECT_TRUE(painting.map.figures().empty()) << "the panel is not open";
    program.main.picUnitInfo.visible = true;
    draw_waypoints(program, painting);
    EXPECT_EQ(painting.map.figures().size(), 10U);
    EXPECT_EQ(painting.map.figures()[0].pen.DrawMode, 9);
}

TEST_F(Waypoints, BeingSetAreTheActiveUnitsRouteAlone) {
    program.main.set_waypoints = true;
    EXPECT_FALSE(waypoints_are_being_set(program)) << "the rubber line is hidden";
    program.main.linTempLine.visible = true;
    EXPECT_TRUE(waypoints_are_being_set(program));
    draw_waypoints_being_set(program, painting);
    EXPECT_EQ(told(painting.map), (Told{"line 100,100 300,100", "line 300,100 300,250"}));
    EXPECT_EQ(told(painting.map.figures()[0].pen), "fore 77 fill 0 style 1 dash 0 width 3 mode 13");
    painting.map.clear();
    program.campaign.gDispWayptData = false;
    unit = program.campaign.colUnits->item("{2}");
    add_waypoint(50, 60);
    draw_waypoints(program, painting);
    EXPECT_EQ(told(painting.map), (Told{"line 0,0 50,60", "circle 50,60 r3"}))
        << "the other layer leaves this unit out and no other";
}

TEST_F(Waypoints, BeingSetNeedAUnitWithOne) {
    program.main.set_waypoints = true;
    program.main.linTempLine.visible = true;
    unit->waypoints.drop();
    EXPECT_FALSE(waypoints_are_being_set(program));
    program.campaign.curUnit = nullptr;
    EXPECT_FALSE(waypoints_are_being_set(program));
}

TEST_F(Waypoints, AreGatedByTheirOption) {
    EXPECT_TRUE(waypoints_are_shown(program));
    program.campaign.gDispWaypoints = false;
    EXPECT_FALSE(waypoints_are_shown(program));
}

TEST_F(Waypoints, WithNobodySelectedThereAreNoneOfTheSelectedUnit) {
    program.campaign.gDispWayptAll = false;
    program.campaign.gDispWayptSelected = program.main.picUnitInfo.visible = true;
    program.campaign.curUnit = nullptr;
    draw_waypoints(program, painting);
    EXPECT_TRUE(painting.map.empty());
}

TEST_F(Waypoints, OfNobodyAreShownWithBothChoicesOff) {
    program.main.picUnitInfo.visible = true;
    program.campaign.gDispWayptAll = program.campaign.gDispWayptSelected = false;
    draw_waypoints(program, painting);
    EXPECT_TRUE(painting.map.empty());
}

TEST_F(Waypoints, TextsHaveRangeAndSpeedWithTheirFractions) {
    unit->waypoints.drop();
    add_waypoint(300, 100, 1350, 4.5);
    add_waypoint(300, 250, 20, 0.5);
    draw_waypoints(program, painting);
    const Told all = told(painting.map);
    EXPECT_THAT(all, testing::Contains("text 240,120 1.35 Km, at 4.5 Km/H"));
    EXPECT_THAT(all, testing::Contains("text 240,270 0.02 Km, at 0.5 Km/H"));
}

TEST_F(Waypoints, DashesAndSizeOfLettersAreThoseOfTheLayersBefore) {
    painting.map.pen.DrawStyle = 2;
    painting.map.pen.FontSize = 10;
    draw_waypoints(program, painting);
    for (const auto& figure : painting.map.figures()) {
        EXPECT_EQ(figure.pen.DrawStyle, 2);
        EXPECT_EQ(figure.pen.FontSize, 10);
    }
}
