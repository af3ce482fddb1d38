#include "operations/draw_fire_missions.h"

#include "tests/support/figures.h"
#include "tests/support/program_test.h"

namespace {

using Told = std::vector<std::string>;

class FireMissions : public ProgramTest {
  protected:
    Told drawn(int missionclass, int missiontype, int pattern = 0, int length = 0, int angle = 0) {
        program.campaign.colFireMissions.drop();
        auto mission = std::make_shared<oFireMission>();
        mission->missionclass = static_cast<std::int16_t>(missionclass);
        mission->missiontype = static_cast<std::int16_t>(missiontype);
        mission->pattern = static_cast<std::int16_t>(pattern);
        mission->line_length = static_cast<std::int16_t>(length);
        mission->line_angle = static_cast<std::int16_t>(angle);
        mission->xcoord = 100;
        mission->ycoord = 200;
        program.campaign.colFireMissions->add(mission, "{M}");
        painting.map.clear();
        painting.map.pen.DrawMode = 9;
        draw_fire_missions(program, painting);
        return told(painting.map);
    }
    std::string pen_of(std::size_t figure) const { return told(painting.map.figures()[figure].pen); }

    Painting painting;
};

} // namespace

TEST_F(FireMissions, AreaTasksShowTheirPatternInTheColoursOfTheirType) {
    EXPECT_EQ(drawn(0, 0, 0), (Told{"circle 100,200 r6", "circle 100,200 r15"}));
    EXPECT_EQ(pen_of(0), "fore 192 fill 192 style 0 dash 0 width 1 mode 13");
    EXPECT_EQ(pen_of(1), "fore 192 fill 192 style 1 dash 0 width 2 mode 13");
    EXPECT_EQ(drawn(0, 1, 1), (Told{"circle 100,200 r6", "circle 100,200 r30"}));
    EXPECT_EQ(pen_of(0), "fore 16576 fill 33023 style 0 dash 0 width 1 mode 13");
    EXPECT_EQ(drawn(0, 2, 2), (Told{"circle 100,200 r6", "circle 100,200 r60"}));
    EXPECT_EQ(pen_of(0), "fore 49344 fill 65535 style 0 dash 0 width 1 mode 13");
    EXPECT_EQ(drawn(0, 2, 3)[1], "circle 100,200 r150");
}

TEST_F(FireMissions, LineReachesItsLengthToBothSides) {
    EXPECT_EQ(drawn(0, 0, 4, 400, 0), (Told{"circle 100,200 r6", "line 40,200 160,200"}));
    EXPECT_EQ(painting.map.figures()[1].pen.DrawWidth, 6);
    EXPECT_EQ(drawn(0, 0, 4, 400, 90)[1], "line 100,140 100,260");
}

TEST_F(FireMissions, NumberedTargetsAndAirTasksHaveNoPattern) {
    EXPECT_EQ(drawn(0, 3, 3), (Told{"circle 100,200 r6", "line 90,200 110,200", "line 100,190 100,210"}));
    EXPECT_EQ(pen_of(1), "fore 32768 fill 65280 style 0 dash 0 width 1 mode 13");
    EXPECT_EQ(drawn(0, 4).size(), 3U);
    EXPECT_EQ(pen_of(0), "fore 192 fill 255 style 0 dash 0 width 1 mode 13");
    EXPECT_EQ(drawn(1, 0, 3), (Told{"circle 100,200 r8", "line 88,200 112,200", "line 100,188 100,212"}));
    EXPECT_EQ(pen_of(0), "fore 12582912 fill 16711680 style 0 dash 0 width 1 mode 13");
    EXPECT_EQ(drawn(1, 1, 3), (Told{"circle 100,200 r6"}));
    EXPECT_EQ(pen_of(0), "fore 16711680 fill 12582912 style 0 dash 0 width 1 mode 13");
}

TEST_F(FireMissions, CrossIsThinWhateverThePenBeforeItAndHasItsDashes) {
    painting.map.pen.DrawWidth = 2; // of zones
    painting.map.pen.DrawStyle = 2;
    drawn(0, 3);
    EXPECT_EQ(pen_of(0), "fore 32768 fill 65280 style 0 dash 2 width 2 mode 13");
    EXPECT_EQ(pen_of(1), "fore 32768 fill 65280 style 0 dash 2 width 1 mode 13");
}

TEST_F(FireMissions, EachLeavesThePenTransparentAndThin) {
    drawn(0, 0, 4, 400);
    EXPECT_EQ(told(painting.map.pen), "fore 0 fill 0 style 1 dash 0 width 1 mode 13");
}

TEST_F(FireMissions, UnlistedOnesDrawNothingAndLeaveThePen) {
    painting.map.pen.ForeColor = 5;
    EXPECT_TRUE(drawn(1, 2).empty());
    EXPECT_TRUE(drawn(2, 0).empty());
    EXPECT_EQ(painting.map.pen.ForeColor, 5);
    EXPECT_EQ(painting.map.pen.DrawMode, 9);
}

TEST_F(FireMissions, AreGatedByTheirOption) {
    EXPECT_TRUE(fire_missions_are_shown(program));
    program.campaign.gDispFireMissions = false;
    EXPECT_FALSE(fire_missions_are_shown(program));
}
