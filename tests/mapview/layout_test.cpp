#include "mapview/layout.h"

#include "mapview/scrolling.h"
#include "tests/support/program_test.h"

namespace {

class Layout : public ProgramTest {
  protected:
    Layout() {
        program.main.width = 1280;
        program.main.height = 1024;
        fit_main_window(program);
    }
};

} // namespace

TEST_F(Layout, WindowTakesWhatFrameAndBarsLeave) {
    EXPECT_EQ(program.main.picMapwindow.width, 998);
    EXPECT_EQ(program.main.picMapwindow.height, 889);
}

TEST_F(Layout, VerticalBarStandsBesideTheWindow) {
    const ScrollBar& bar = program.main.scrlVMap;
    EXPECT_EQ(bar.left, 1252);
    EXPECT_EQ(bar.top, 41);
    EXPECT_EQ(bar.height, 889);
    EXPECT_EQ(bar.min, 0);
    EXPECT_EQ(bar.max, 5115);
    EXPECT_EQ(bar.large_change, 442);
    EXPECT_EQ(bar.small_change, 74);
}

TEST_F(Layout, HorizontalBarStandsBelowTheWindow) {
    const ScrollBar& bar = program.main.scrlHMap;
    EXPECT_EQ(bar.left, 252);
    EXPECT_EQ(bar.top, 932);
    EXPECT_EQ(bar.width, 998);
    EXPECT_EQ(bar.max, 4382);
    EXPECT_EQ(bar.large_change, 497);
    EXPECT_EQ(bar.small_change, 83);
}

TEST_F(Layout, InfoPanelAndRulersFollow) {
    EXPECT_EQ(program.main.picUnitInfo.height, 634);
    EXPECT_EQ(program.main.picVcoordContainer.height, 889);
    EXPECT_EQ(program.main.picHcoordContainer.width, 998);
}

TEST_F(Layout, OverviewBoxHasTheWindowsShareOfTheOverview) {
    EXPECT_EQ(program.main.shpOverviewbox.width, 42);
    EXPECT_EQ(program.main.shpOverviewbox.height, 40);
}

TEST_F(Layout, MinimisedWindowChangesNothing) {
    Form_Resize(program, 160, 30, 0);
    EXPECT_EQ(program.main.picMapwindow.width, 998);
    Form_Resize(program, 900, 700, 892);
    EXPECT_EQ(program.main.picMapwindow.width, 618);
}

TEST_F(Layout, MapTooLargeForTheBarsIsTold) {
    program.main.picMap.height = 40000;
    fit_main_window(program);
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error 6 when resizing the map window."});
}

TEST_F(Layout, LargerWindowPullsTheBarsBackIntoTheirRange) {
    scroll_horizontally_to(program, 4382);
    Form_Resize(program, 1920, 1080, 1912);
    EXPECT_EQ(program.main.scrlHMap.value, program.main.scrlHMap.max);
    EXPECT_EQ(program.main.picMap.left, -program.main.scrlHMap.max);
}

TEST_F(Layout, MapSmallerThanTheWindowStaysAtItsCorner) {
    program.main.picMap.width = 300;
    program.main.picMap.height = 200;
    fit_main_window(program);
    EXPECT_EQ(program.main.scrlHMap.max, 300 - 994);
    scroll_horizontally_to(program, 50);
    EXPECT_EQ(program.main.scrlHMap.value, 0);
}
