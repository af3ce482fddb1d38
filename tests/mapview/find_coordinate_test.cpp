#include "mapview/find_coordinate.h"

#include "mapview/frmEnterCoord.h"
#include "mapview/scrolling.h"
#include "tests/support/program_test.h"

namespace {

class FindCoordinate : public ProgramTest {
  protected:
    FindCoordinate() {
        program.main.picOverviewmap.width = 224;
        program.main.shpOverviewbox.width = 42;
    }

    void find(std::int16_t x, std::int16_t y) {
        platform.on_modal["frmEnterCoord"] = [this, x, y](Form&) {
            program.campaign.gFindX = x;
            program.campaign.gFindY = y;
        };
        cmdFindCoord_Click(program);
    }

    bool marker_visible() const {
        return program.main.shpFindgrid.visible && program.main.linFindgridx.visible &&
               program.main.linFindgridy.visible;
    }

    /// What OK makes of the two texts: the message, or none.
    std::string enter(const std::string& east, const std::string& north) {
        platform.messages.clear();
        auto& form = program.form<frmEnterCoord>();
        form.visible = true;
        form.txtLongdata.text = east;
        form.txtLatdata.text = north;
        form.cmdOK_Click();
        return platform.messages.empty() ? "" : platform.messages[0].text;
    }
};

const std::string too_short = "Please enter at least two digits in each field.";
const std::string no_digits = "Please enter only digits in each field.";
const std::string outside = "Please enter a coordinate within the map boundries.";

} // namespace

TEST_F(FindCoordinate, CancelOrAPointOnTheWestEdgeShowsNothing) {
    program.campaign.gFindX = 500;
    platform.on_modal["frmEnterCoord"] = [](Form& form) {
        static_cast<frmEnterCoord&>(form).cmdCancel_Click();
    };
    cmdFindCoord_Click(program);
    EXPECT_TRUE(program.campaign.gCoordCancelled);
    EXPECT_FALSE(marker_visible());
    find(0, 500);
    EXPECT_FALSE(program.campaign.gCoordCancelled) << "cleared before the dialog is shown";
    EXPECT_FALSE(marker_visible());
    EXPECT_FALSE(program.main.tmrTimer.enabled);
    find(1, 0);
    EXPECT_TRUE(marker_visible());
}

TEST_F(FindCoordinate, PointComesToTheMiddleAsFarAsTheMapReaches) {
    for (const auto& [x, value] :
         std::vector<std::pair<int, int>>{{498, 0}, {499, 0}, {500, 1}, {4877, 4378}, {4878, 4382}}) {
        find(static_cast<std::int16_t>(x), 3000);
        EXPECT_EQ(program.main.scrlHMap.value, value) << x;
    }
    EXPECT_EQ(program.main.scrlVMap.value, 2556) << "3000 less half of 889, half to even";
}

TEST_F(FindCoordinate, HeightHasItsOwnEnds) {
    for (const auto& [y, value] :
         std::vector<std::pair<int, int>>{{444, 0}, {446, 2}, {5555, 5110}, {5556, 5115}, {6000, 5115}}) {
        find(1000, static_cast<std::int16_t>(y));
        EXPECT_EQ(program.main.scrlVMap.value, value) << y;
    }
}

TEST_F(FindCoordinate, PointOnTheWestEdgeIsWithinTheMap) {
    EXPECT_EQ(enter("0000", "2000"), "");
    EXPECT_EQ(program.campaign.gFindX, 0);
}

TEST_F(FindCoordinate, MarkerStandsAroundThePoint) {
    find(1000, 2000);
    const frmMain& main = program.main;
    EXPECT_EQ(main.shpFindgrid.left, 984);
    EXPECT_EQ(main.shpFindgrid.top, 1984);
    EXPECT_EQ(main.shpFindgrid.border_width, 3);
    EXPECT_EQ(main.linFindgridx.x1, 976);
    EXPECT_EQ(main.linFindgridx.x2, 1024);
    EXPECT_EQ(main.linFindgridx.y1, 2000);
    EXPECT_EQ(main.linFindgridx.y2, 2000);
    EXPECT_EQ(main.linFindgridy.x2, 1000);
    EXPECT_EQ(main.linFindgridy.y1, 2024);
    EXPECT_EQ(main.linFindgridy.y2, 1976);
    EXPECT_EQ(main.linFindgridy.x1, 1000);
}

TEST_F(FindCoordinate, MarkerBlinksSevenTimesAndGoesAway) {
    find(1000, 2000);
    EXPECT_EQ(program.main.tmrTimer.interval, 300);
    for (int tick = 1; tick <= 7; ++tick) {
        EXPECT_TRUE(program.main.tmrTimer.enabled);
        tmrTimer_Timer(program);
        const frmMain& main = program.main;
        for (const bool shown :
             {main.shpFindgrid.visible, main.linFindgridx.visible, main.linFindgridy.visible})
            EXPECT_EQ(shown, tick % 2 == 0) << tick;
    }
    EXPECT_FALSE(program.main.tmrTimer.enabled);
    EXPECT_EQ(program.campaign.gBlinkCount, 0);
}

TEST_F(FindCoordinate, NewSearchGoesOnWithTheCountOfTheOld) {
    program.campaign.gBlinkCount = 6;
    find(1000, 2000);
    EXPECT_FALSE(program.main.tmrTimer.enabled);
    program.campaign.gBlinkCount = 5;
    find(1000, 2000);
    EXPECT_TRUE(program.main.tmrTimer.enabled);
}

TEST_F(FindCoordinate, ShortOrUnnumericTextsAreRefusedLengthFirst) {
    EXPECT_EQ(enter("7", "4000"), too_short);
    EXPECT_EQ(enter("0150", "4"), too_short);
    EXPECT_EQ(enter("ab", "4"), too_short);
    EXPECT_EQ(enter("ab", "4000"), no_digits);
    EXPECT_EQ(enter("0150", "4o00"), no_digits);
    EXPECT_EQ(platform.messages[0].title, "Tolvane ][");
    EXPECT_TRUE(program.form<frmEnterCoord>().visible);
}

TEST_F(FindCoordinate, TextsBecomeFourDigits) {
    const std::vector<std::pair<std::string, int>> cases{{"12", 1800},  {"07", 1050},  {"125", 1875},
                                                         {"012", 1830}, {"001", 1515}, {"12345", 1868},
                                                         {"0150", 225}, {"1.5", 2272}};
    for (const auto& [text, x] : cases) {
        EXPECT_EQ(enter(text, "2000"), "") << text;
        EXPECT_EQ(program.campaign.gFindX, x) << text;
        EXPECT_EQ(program.campaign.gFindY, 3102);
        EXPECT_FALSE(program.form<frmEnterCoord>().visible);
    }
    EXPECT_EQ(enter("2000", "1200"), "");
    const std::int16_t twelve_km = program.campaign.gFindY;
    EXPECT_EQ(enter("2000", "12"), "");
    EXPECT_EQ(program.campaign.gFindY, twelve_km) << "the north text as well";
}

TEST_F(FindCoordinate, PointOutsideTheMapIsRefusedAndTheBoxesReset) {
    for (const auto& [east, north] : std::vector<std::pair<std::string, std::string>>{
             {"3600", "2000"}, {"1000", "9900"}, {"-5", "2000"}, {"1000", "0000"}}) {
        EXPECT_EQ(enter(east, north), outside) << east;
        EXPECT_TRUE(program.form<frmEnterCoord>().visible);
        EXPECT_EQ(program.form<frmEnterCoord>().txtLongdata.text, "0000");
        EXPECT_EQ(program.form<frmEnterCoord>().txtLatdata.text, "0000");
    }
}

TEST_F(FindCoordinate, RightAndBottomEdgeLieInside) {
    program.main.picMap.width = 5400;
    program.main.picMap.height = 6102;
    EXPECT_EQ(enter("3600", "2000"), "");
    EXPECT_EQ(program.campaign.gFindX, 5400);
    EXPECT_EQ(enter("1000", "0000"), "");
    EXPECT_EQ(program.campaign.gFindY, 6102);
}

TEST_F(FindCoordinate, DialogOpensWithItsTextsSelectedAndFocusSelectsThemAgain) {
    auto& form = program.form<frmEnterCoord>();
    EXPECT_EQ(form.heading, "Enter the coordinates.");
    EXPECT_TRUE(form.txtLongdata.all_selected && form.txtLatdata.all_selected);
    form.txtLatdata.all_selected = false;
    form.txtLatdata_GotFocus();
    EXPECT_TRUE(form.txtLatdata.all_selected);
}

TEST_F(FindCoordinate, CloseBoxIsCancel) {
    auto& form = program.form<frmEnterCoord>();
    form.visible = true;
    form.close_box();
    EXPECT_TRUE(program.campaign.gCoordCancelled);
    EXPECT_FALSE(form.visible);
}
