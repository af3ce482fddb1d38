#include "mapview/overview.h"

#include "mapview/frmDisplay.h"
#include "tests/support/map_test.h"

#include <string>
#include <utility>
#include <vector>

namespace {

class Overview : public MapTest {
  protected:
    Overview() {
        main.shpOverviewbox.width = 42;
        main.shpOverviewbox.height = 40;
    }
    using At = std::pair<int, int>;
    At values() const { return {program.main.scrlHMap.value, program.main.scrlVMap.value}; }
};

} // namespace

TEST_F(Overview, LeftButtonBringsThePlaceToTheMiddle) {
    picOverviewmap_MouseUp(program, {left_button, 0, 112, 125});
    EXPECT_EQ(values(), At(2184, 2520));
    picOverviewmap_MouseMove(program, {left_button, 0, 0, 0});
    EXPECT_EQ(values(), At(0, 0));
    picOverviewmap_MouseUp(program, {left_button, 0, 500, 500});
    EXPECT_EQ(values(), At(4368, 5040));
}

TEST_F(Overview, OtherButtonsMoveNothing) {
    for (const int button : {right_button, 4}) {
        picOverviewmap_MouseMove(program, {button, 0, 112, 125});
        picOverviewmap_MouseUp(program, {button, 0, 112, 125});
        EXPECT_EQ(values(), At(0, 0));
    }
}

TEST_F(Overview, EachAxisHasItsOwnScaleForTheReference) {
    main.picMap.height = 12000;
    picOverviewmap_MouseMove(program, {0, 0, 112, 125});
    EXPECT_EQ(main.sbarMap.panels[0], "Eastern: 17.92 - Northern: 00.68");
}

TEST_F(Overview, MapAndViewportBoxFollowThePlace) {
    picOverviewmap_MouseUp(program, {left_button, 0, 112, 125});
    EXPECT_EQ(main.picMap.left, -2184);
    EXPECT_EQ(main.picMap.top, -2520);
    EXPECT_EQ(main.shpOverviewbox.left, 2184 / 24);
    EXPECT_EQ(main.shpOverviewbox.top, 2520 / 24 - 3);
}

TEST_F(Overview, FactorIsOneWholeNumberForBothAxes) {
    main.picMap.width = 6290;
    main.scrlHMap.max = 5300;
    picOverviewmap_MouseUp(program, {left_button, 0, 112, 125});
    EXPECT_EQ(values(), At((112 - 21) * 28, (125 - 20) * 28));
}

TEST_F(Overview, MoveShowsTheReferenceClampedToTheBorder) {
    picOverviewmap_MouseMove(program, {0, 0, 112, 125});
    const std::string middle = main.sbarMap.panels[0];
    EXPECT_EQ(middle, "Eastern: 17.92 - Northern: 20.68");
    picOverviewmap_MouseMove(program, {0, 0, 0, 250});
    const std::string corner = main.sbarMap.panels[0];
    picOverviewmap_MouseMove(program, {0, 0, -5, 300});
    EXPECT_EQ(main.sbarMap.panels[0], corner);
    EXPECT_EQ(values(), At(0, 0));
}

TEST_F(Overview, RightPressOpensThePopupAndTheLeftOneDoesNothing) {
    picOverviewmap_MouseDown(program, {left_button, 0, 112, 125});
    EXPECT_TRUE(platform.log.empty());
    EXPECT_EQ(values(), At(0, 0));
    picOverviewmap_MouseDown(program, {right_button, 0, 112, 125});
    EXPECT_EQ(platform.log, std::vector<std::string>{"popup Overview Popup"});
}

TEST_F(Overview, PopupTogglesLinesFansAndUnits) {
    const auto unit = add_marked("{1}", 500, 500);
    add_marked("{2}", 500, 500);
    main.shpUnit(2).tag = deleted_tag;
    mnuOVPU_showlines_Click(program);
    EXPECT_FALSE(main.mnuOVPU_showlines.checked);
    EXPECT_TRUE(main.picMap.marked);
    mnuOVPU_show_units_Click(program);
    EXPECT_FALSE(main.shpUnit(1).visible);
    EXPECT_TRUE(main.shpUnit(2).visible) << "one that is deleted is left alone";
    main.picMap.marked = false;
    mnuViewFFoverview_Click(program);
    EXPECT_TRUE(main.picMap.marked);
    EXPECT_FALSE(campaign.gDispOmFirefans || main.mnuViewFFoverview.checked ||
                 program.form<frmDisplay>().chkOmFirefans.value);
}

TEST_F(Overview, GroupDroppedOnTheOverviewKeepsItsShape) {
    press_unit(*add_marked("{1}", 100, 100));
    const auto second = add_marked("{2}", 200, 100);
    press_unit(*second, left_button, ctrl_key);
    press_unit(*campaign.colUnits->item("{1}"), left_button, shift_key);
    drag_drop(program, DropSite::overview, 50, 60);
    EXPECT_EQ(second->xcoord - campaign.colUnits->item("{1}")->xcoord, 100);
}

TEST_F(Overview, DotsAreThreePixelsWideAndFourHigh) {
    add_marked("{1}", 100, 100);
    EXPECT_EQ(main.shpUnit(1).width, 3);
    EXPECT_EQ(main.shpUnit(1).height, 4);
}
