#include "operations/range_tools.h"

#include "mapview/tool_modes.h"
#include "operations/unit_tools.h"
#include "tests/support/map_test.h"

namespace {

class RangeTools : public MapTest {
  protected:
    const std::string& text() const { return program.main.sbarMap.panels[2]; }

    /// Whether the map is painted anew after the step.
    template <class Step> bool paints(Step step) {
        main.picMap.marked = false;
        step();
        return main.picMap.marked;
    }
};

} // namespace

TEST_F(RangeTools, TwoPointRangeFollowsThePointerUntilARightPress) {
    cmdRangecheck_Click(program);
    EXPECT_TRUE(main.cmdRangecheck.on() && main.cmdRangecheck.enabled);
    EXPECT_FALSE(main.cmdPathRange.enabled);
    press(200, 200);
    EXPECT_EQ(main.shpAnchor[0].left, 196.5);
    EXPECT_TRUE(main.shpAnchor[0].visible && main.linTempLine.visible);
    move(350, 200);
    EXPECT_EQ(text(), "Range: 1.00 km.");
    move(350, 350);
    EXPECT_EQ(text(), "Range: 1.41 km.");
    press(900, 900, right_button);
    EXPECT_FALSE(main.checking_range || main.cmdRangecheck.on() || main.shpAnchor[0].visible ||
                 main.linTempLine.visible);
    EXPECT_EQ(text(), "");
    EXPECT_TRUE(main.cmdPathRange.enabled);
    EXPECT_EQ(main.linTempLine.width, 2);
}

TEST_F(RangeTools, EachFencesOffAllButItsOwnButtonUntilThatIsPressedAgain) {
    const std::vector<std::pair<void (*)(Program&), Button*>> tools{
        {cmdRangecheck_Click, &main.cmdRangecheck}, {cmdPathRange_Click, &main.cmdPathRange}};
    for (const auto& [click, own] : tools) {
        click(program);
        EXPECT_TRUE(own->on());
        EXPECT_EQ(enabled_buttons(), std::vector<Button*>{own});
        press(200, 200);
        move(350, 200);
        EXPECT_EQ(text(), "Range: 1.00 km.");
        click(program);
        EXPECT_FALSE(own->on() || main.checking_range || main.checking_path_range ||
                     main.linTempLine.visible || main.shpAnchor[0].visible);
        EXPECT_EQ(text(), "");
        EXPECT_EQ(enabled_buttons(), fenced_buttons());
    }
}

TEST_F(RangeTools, DrawingALineShowsNoRange) {
    main.linTempLine = {0, 0, 0, 0, true};
    main.drawing_lines = true;
    move(150, 0);
    EXPECT_EQ(text(), "");
}

TEST_F(RangeTools, PathAddsItsRoundedSegmentsAndTheLegInHand) {
    cmdPathRange_Click(program);
    move(10, 10);
    EXPECT_EQ(text(), "");
    press(100, 100);
    move(250, 100);
    EXPECT_EQ(text(), "Range: 1.00 km.");
    press(250, 100);
    press(250, 250);
    EXPECT_EQ(campaign.colPathPoints.count(), 3U);
    EXPECT_EQ(main.shpAnchor.size(), 3U);
    move(400, 250);
    EXPECT_EQ(text(), "Range: 3.00 km.");
    press(400, 400, right_button);
    EXPECT_TRUE(main.checking_path_range && campaign.colPathPoints.empty());
    EXPECT_EQ(main.shpAnchor.size(), 1U);
    EXPECT_EQ(text(), "");
    cmdPathRange_Click(program);
    EXPECT_FALSE(main.checking_path_range || main.cmdPathRange.on());
    EXPECT_TRUE(main.cmdRangecheck.enabled);
}

TEST_F(RangeTools, PathBeyondSixteenBitsIsTold) {
    cmdPathRange_Click(program);
    for (int i = 0; i < 12; ++i)
        campaign.colPathPoints->add(std::make_shared<oCoordinates>(oCoordinates{i % 2 * 5000, 0}));
    main.linTempLine.visible = true;
    move(10, 10);
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error 6 when moving the mouse."});
}

TEST_F(RangeTools, CirclesAreSetAndDroppedByPressesUntilTheMenu) {
    mnuRangeCircles_Click(program);
    EXPECT_TRUE(main.mnuRangeCircles.checked);
    press(100, 100);
    press(200, 200);
    EXPECT_EQ(campaign.colCirclePoints.count(), 2U);
    press(200, 200, right_button);
    EXPECT_TRUE(campaign.colCirclePoints.empty() && main.showing_range_circles);
    press(200, 200);
    mnuRangeCircles_Click(program);
    EXPECT_TRUE(campaign.colCirclePoints.empty());
    EXPECT_FALSE(main.mnuRangeCircles.checked);
}

TEST_F(RangeTools, AreaIsDrawnAroundTheUnitAndReplacesTheOldOneAtTheFirstPoint) {
    const auto unit = add_marked("{1}", 500, 600);
    press_unit(*unit);
    unit->area_of_opeartion->add(std::make_shared<oCoordinates>(oCoordinates{1, 1}));
    cmdDrawAOO_Click(program);
    EXPECT_TRUE(main.cmdDrawAOO.on());
    EXPECT_FALSE(main.cmdDrawLines.enabled);
    press(400, 500);
    press(610.4, 500);
    ASSERT_EQ(unit->area_of_opeartion.count(), 2U);
    EXPECT_EQ(unit->area_of_opeartion->at(1)->x_cor, -100);
    EXPECT_EQ(unit->area_of_opeartion->at(2)->x_cor, 110);
    EXPECT_EQ(unit->area_of_opeartion->at(2)->y_cor, -100);
    press(900, 900, right_button);
    EXPECT_FALSE(main.drawing_aoo || main.linTempLine.visible);
    EXPECT_TRUE(main.aoo_popup_guard && main.cmdDrawLines.enabled);
}

TEST_F(RangeTools, RubberLineBeginsAtEachPointOfAnArea) {
    press_unit(*add_marked("{1}", 500, 600));
    cmdDrawAOO_Click(program);
    const LineControl& rubber = main.linTempLine;
    EXPECT_FALSE(rubber.visible);
    for (const double x : {400, 610}) {
        press(x, 500);
        EXPECT_TRUE(rubber.visible);
        EXPECT_EQ((std::vector<double>{rubber.x1, rubber.y1, rubber.x2, rubber.y2}),
                  (std::vector<double>{x, 500, x, 500}));
        move(450, 450);
        EXPECT_EQ(rubber.x2, 450);
    }
}

TEST_F(RangeTools, DrawingAnAreaEndsByItsButtonTooAndGuardsTheNextRightRelease) {
    press_unit(*add_marked("{1}", 500, 600));
    enable_all(program);
    cmdDrawAOO_Click(program);
    EXPECT_FALSE(main.aoo_popup_guard);
    EXPECT_TRUE(enabled_buttons().empty());
    press(400, 500);
    EXPECT_TRUE(paints([&] { cmdDrawAOO_Click(program); }));
    EXPECT_FALSE(main.drawing_aoo || main.cmdDrawAOO.on() || main.linTempLine.visible);
    EXPECT_EQ(enabled_buttons(), fenced_buttons());
    main.popup_x = main.popup_y = 900;
    release(800, 800, right_button);
    EXPECT_EQ(main.scrlHMap.value, 0) << "the map stays";
    EXPECT_FALSE(main.aoo_popup_guard);
}

TEST_F(RangeTools, StepsThatChangeWhatIsDrawnPaintTheMapAnew) {
    press_unit(*add_marked("{1}", 500, 600));
    cmdDrawAOO_Click(program);
    EXPECT_TRUE(paints([&] { press(400, 500); }));
    EXPECT_TRUE(paints([&] { press(400, 500, right_button); }));
    platform.answers = {Answer::no, Answer::yes};
    EXPECT_FALSE(paints([&] { cmdDelAOO_Click(program); }));
    EXPECT_TRUE(paints([&] { cmdDelAOO_Click(program); }));
    const MapPress left{left_button, 0, 100, 100};
    mnuRangeCircles_Click(program);
    EXPECT_TRUE(paints([&] { press_sets_circles(program, left); }));
    EXPECT_TRUE(paints([&] { press(100, 100, right_button); }));
    EXPECT_TRUE(paints([&] { mnuRangeCircles_Click(program); }));
    cmdPathRange_Click(program);
    EXPECT_TRUE(paints([&] { press_adds_path_point(program, left); }));
    EXPECT_TRUE(paints([&] { press(100, 100, right_button); }));
    EXPECT_TRUE(paints([&] { cmdPathRange_Click(program); }));
}

TEST_F(RangeTools, RightPressAsTheFirstLeavesTheOldArea) {
    const auto unit = add_marked("{1}", 500, 600);
    press_unit(*unit);
    unit->area_of_opeartion->add(std::make_shared<oCoordinates>(oCoordinates{1, 1}));
    cmdDrawAOO_Click(program);
    press(900, 900, right_button);
    EXPECT_EQ(unit->area_of_opeartion.count(), 1U);
}

TEST_F(RangeTools, DeletingAnAreaAsks) {
    const auto unit = add_marked("{1}", 500, 600);
    press_unit(*unit);
    unit->area_of_opeartion->add(std::make_shared<oCoordinates>(oCoordinates{1, 1}));
    platform.answers = {Answer::no, Answer::yes};
    cmdDelAOO_Click(program);
    EXPECT_EQ(unit->area_of_opeartion.count(), 1U);
    EXPECT_EQ(platform.messages[0].text, "Delete the unit's area of operations?");
    EXPECT_EQ(platform.messages[0].default_button, Answer::no);
    cmdDelAOO_Click(program);
    EXPECT_TRUE(unit->area_of_opeartion.empty());
}

TEST_F(RangeTools, FanFollowsThePointerUntilAnyPress) {
    const auto unit = add_marked("{1}", 500, 600);
    press_unit(*unit);
    campaign.curUFE = std::make_shared<oUnitForceElements>();
    cmdSetFirefan_Click(program);
    move(600, 600);
    EXPECT_EQ(campaign.curUFE->FireFanAngle, 90);
    EXPECT_TRUE(main.linTempLine.visible);
    EXPECT_EQ(main.linTempLine.x1, 500);
    EXPECT_EQ(main.linTempLine.x2, 600) << "with its free end at the pointer from the first move on";
    EXPECT_EQ(main.linTempLine.y2, 600);
    press(500, 700, right_button);
    EXPECT_EQ(campaign.curUFE->FireFanAngle, 180);
    EXPECT_FALSE(main.setting_firefan || main.linTempLine.visible || main.cmdSetFirefan.on());
}
