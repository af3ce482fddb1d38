#include "mapview/unit_tray.h"

#include "annotation/line_panel.h"
#include "tests/support/map_test.h"

#include <string>
#include <vector>

namespace {

class UnitTray : public MapTest {
  protected:
    UnitTray() {
        main.picUnitInfo.left = 4;
        main.picUnitInfo.width = 224;
        main.picUnitInfo.height = 300;
    }
};

} // namespace

TEST_F(UnitTray, TrayOpensOverThePanelEndsTheLineToolAndKeepsItsMarkers) {
    const auto unit = add_marked("{1}", 500, 500);
    main.picDrawLines.visible = main.picPlaceShapes.visible = true;
    main.deleting_line = main.placing_shape = true;
    cmdUnitTray_Click(program);
    EXPECT_TRUE(main.picUnitTray.visible && main.cmdUnitTray.on());
    EXPECT_EQ(main.picUnitTray.width, 224);
    EXPECT_FALSE(main.picDrawLines.visible || main.picPlaceShapes.visible || main.deleting_line ||
                 main.placing_shape);
    press_unit(*unit, left_button, shift_key);
    drag_drop(program, DropSite::tray, 60, 80);
    EXPECT_EQ(marker(*unit).container, Container::tray);
    EXPECT_EQ(unit->xcoord, 60);
    EXPECT_EQ(unit->ycoord, 80);
    drag_drop(program, DropSite::tray, 900, 900);
    EXPECT_EQ(unit->xcoord, 224) << "the tray's size is the limit";
    EXPECT_EQ(unit->ycoord, 300);
    cmdUTClose_Click(program);
    EXPECT_FALSE(main.picUnitTray.visible || main.cmdUnitTray.on());
    EXPECT_EQ(marker(*unit).container, Container::tray);
    drag_drop(program, DropSite::map, 400, 400);
    EXPECT_EQ(marker(*unit).container, Container::map);
}

TEST_F(UnitTray, TrayBandTakesMarkersOfTheMapTooAndShowsTheHighestIndex) {
    const auto first = add_marked("{1}", 100, 100);
    const auto last = add_marked("{2}", 900, 900);
    picUnitTray_MouseDown(program, {left_button, 0, 50, 50});
    picUnitTray_MouseMove(program, {left_button, 0, 150, 150});
    picUnitTray_MouseUp(program, {left_button, 0, 150, 150});
    EXPECT_EQ(selected(), 1U);
    EXPECT_EQ(marker(*first).border_style, 1);
    EXPECT_EQ(campaign.curUnit, last);
    main.imgUnit(2).tag = deleted_tag;
    picUnitTray_MouseDown(program, {left_button, 0, 50, 50});
    EXPECT_EQ(selected(), 0U) << "a single one is taken off first";
    picUnitTray_MouseMove(program, {left_button, 0, 150, 150});
    picUnitTray_MouseUp(program, {left_button, 0, 150, 150});
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error 5 when displaying unit info."});
}

TEST_F(UnitTray, TrayWithAGroupLetsOnlyARightPressTakeItOff) {
    const auto first = add_marked("{1}", 100, 100);
    const auto second = add_marked("{2}", 200, 100);
    press_unit(*first);
    press_unit(*second, left_button, ctrl_key);
    picUnitTray_MouseDown(program, {left_button, 0, 5, 5});
    EXPECT_EQ(selected(), 2U);
    EXPECT_FALSE(main.shpTrayRubberband.visible);
    picUnitTray_MouseDown(program, {right_button, 0, 5, 5});
    EXPECT_EQ(selected(), 0U);
}

TEST_F(UnitTray, OpeningTheTrayEndsEveryModeOfTheLineTool) {
    cmdDrawLines_Click(program);
    main.drawing_lines = main.deleting_line = main.moving_line_point = main.deleting_line_point = true;
    main.inserting_line_point = main.linTempLine.visible = true;
    main.cmdLoad.enabled = false;
    cmdUnitTray_Click(program);
    EXPECT_FALSE(main.drawing_lines || main.deleting_line || main.moving_line_point ||
                 main.deleting_line_point || main.inserting_line_point || main.linTempLine.visible);
    EXPECT_FALSE(main.cmdLoad.enabled) << "what other tools have switched off stays so";
    cmdUnitTray_Click(program);
    EXPECT_FALSE(main.picUnitTray.visible) << "the button closes it again";
}

TEST_F(UnitTray, BandOfTheTrayTakesAMarkerThereAsOneOfTheMap) {
    const auto on_map = add_marked("{1}", 100, 100);
    const auto in_tray = add_marked("{2}", 100, 100);
    marker(*in_tray).container = Container::tray;
    picUnitTray_MouseDown(program, {left_button, 0, 50, 50});
    picUnitTray_MouseMove(program, {left_button, 0, 150, 150});
    picUnitTray_MouseUp(program, {left_button, 0, 150, 150});
    EXPECT_EQ(selected(), 2U);
    EXPECT_EQ(marker(*in_tray).border_style + marker(*on_map).border_style, 2);
    EXPECT_TRUE(main.mnuDeleteSelected.enabled);
    EXPECT_FALSE(main.mnuUP_edit.enabled);
}

TEST_F(UnitTray, BandOfTheTrayGrowsUnderTheConditionsOfTheMap) {
    main.checking_range = true;
    picUnitTray_MouseDown(program, {left_button, 0, 50, 50});
    picUnitTray_MouseMove(program, {left_button, 0, 150, 150});
    EXPECT_EQ(main.shpTrayRubberband.width, 0);
}

TEST_F(UnitTray, OtherButtonsStartNoBandAndTakeNoUnitOff) {
    press_unit(*add_marked("{1}", 100, 100));
    for (const int button : {right_button, 4}) {
        picUnitTray_MouseDown(program, {button, 0, 50, 50});
        EXPECT_FALSE(main.shpTrayRubberband.visible);
        EXPECT_EQ(selected(), 1U);
    }
}

TEST_F(UnitTray, HiddenOneEndsItsBand) {
    for (const auto hide : {cmdUTClose_Click, cmdUnitTray_Click}) {
        cmdUnitTray_Click(program);
        picUnitTray_MouseDown(program, {left_button, 0, 50, 50});
        ASSERT_TRUE(main.picUnitTray.visible && main.shpTrayRubberband.visible);
        hide(program);
        EXPECT_FALSE(main.picUnitTray.visible || main.shpTrayRubberband.visible);
    }
}
