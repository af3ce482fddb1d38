#include "mapview/selection.h"

#include "annotation/line_panel.h"
#include "core/hierarchy.h"
#include "mapview/move_unit.h"
#include "mapview/unit_info.h"
#include "mapview/unit_states.h"
#include "tests/support/map_test.h"

namespace {

class Selection : public MapTest {
  protected:
    Selection() {
        first = add_marked("{1}", 500, 500);
        second = add_marked("{2}", 600, 500);
    }

    void select_both() {
        press_unit(*first);
        press_unit(*second, left_button, ctrl_key);
    }

    std::shared_ptr<oUnits> first;
    std::shared_ptr<oUnits> second;
};

} // namespace

TEST_F(Selection, PressOnAMarkerSelectsItAloneAndShowsItsPanelWithoutDragging) {
    press_unit(*first);
    EXPECT_EQ(selected(), 1U);
    EXPECT_EQ(marker(*first).border_style, 1);
    EXPECT_EQ(campaign.curUnit, first);
    EXPECT_TRUE(main.picUnitInfo.visible);
    EXPECT_FALSE(main.dragging);
    EXPECT_EQ(main.drag_index, 1);
    press_unit(*second);
    EXPECT_EQ(selected(), 1U);
    EXPECT_EQ(marker(*first).border_style, 0);
    EXPECT_EQ(campaign.curUnit, second);
}

TEST_F(Selection, CtrlTogglesWithoutPanelOrActiveUnit) {
    press_unit(*first, left_button, ctrl_key);
    EXPECT_EQ(selected(), 1U);
    EXPECT_EQ(marker(*first).border_style, 1);
    EXPECT_EQ(campaign.curUnit, nullptr);
    EXPECT_FALSE(main.picUnitInfo.visible);
    press_unit(*first, left_button, ctrl_key);
    EXPECT_EQ(selected(), 0U);
    EXPECT_EQ(marker(*first).border_style, 0);
}

TEST_F(Selection, GroupHidesThePanelAndChangesTheMenus) {
    select_both();
    EXPECT_EQ(selected(), 2U);
    EXPECT_FALSE(main.picUnitInfo.visible);
    EXPECT_TRUE(main.mnuDeleteSelected.enabled && main.mnuUP_delete_all.enabled);
    EXPECT_FALSE(main.mnuUP_delete.enabled || main.mnuUP_edit.enabled || main.mnuUP_moveto.enabled);
    press_unit(*second, left_button, ctrl_key);
    EXPECT_FALSE(main.mnuDeleteSelected.enabled || main.mnuUP_delete_all.enabled);
    EXPECT_TRUE(main.mnuUP_delete.enabled && main.mnuUP_edit.enabled && main.mnuUP_moveto.enabled);
}

TEST_F(Selection, GroupStaysThroughAPressOnAnyMarker) {
    select_both();
    const auto third = add_marked("{3}", 700, 500);
    press_unit(*third);
    EXPECT_EQ(selected(), 2U);
    EXPECT_EQ(marker(*third).border_style, 0);
}

TEST_F(Selection, LeftPressOnEmptyMapTakesASingleUnitOffAndNothingElse) {
    press_unit(*first);
    press(2000, 2000);
    EXPECT_EQ(selected(), 0U);
    EXPECT_FALSE(main.picUnitInfo.visible);
    EXPECT_EQ(campaign.curUnit, first) << "it stays the active one";
}

TEST_F(Selection, LeftOrMiddlePressWithAGroupDoesNothing) {
    select_both();
    main.drawing_lines = main.line_ended = true;
    for (const int button : {left_button, 4}) {
        press(2000, 2000, button);
        EXPECT_FALSE(main.shpRubberband.visible);
        release(2000, 2000, button);
        EXPECT_EQ(selected(), 2U);
        EXPECT_TRUE(campaign.colLines.empty()) << "no tool acts behind it";
    }
}

TEST_F(Selection, MiddlePressClosesThePanelOnlyAndRightPressNeither) {
    press_unit(*first);
    press(2000, 2000, right_button);
    EXPECT_TRUE(main.picUnitInfo.visible);
    press(2000, 2000, 4);
    EXPECT_FALSE(main.picUnitInfo.visible);
    EXPECT_EQ(selected(), 1U);
}

TEST_F(Selection, RightPressTakesAGroupOffWithoutAPan) {
    select_both();
    press(2000, 2000, right_button);
    EXPECT_EQ(selected(), 0U);
    EXPECT_TRUE(main.map_popup_shown);
    release(1900, 1900, right_button);
    EXPECT_FALSE(main.map_popup_shown);
    EXPECT_EQ(main.scrlHMap.value, 0);
}

TEST_F(Selection, OnlyTheLeftButtonDragsWithShift) {
    for (const int button : {right_button, 4}) {
        press_unit(*first, button, shift_key);
        EXPECT_FALSE(main.dragging);
    }
}

TEST_F(Selection, RightPressOnAMarkerSelectsItAndOpensThePopup) {
    press_unit(*first, right_button);
    EXPECT_EQ(selected(), 1U);
    EXPECT_EQ(platform.log.back(), "popup Unit menu");
}

TEST_F(Selection, ClearingRepaintsOnlyWhileNamesAreShown) {
    press_unit(*first);
    main.picMap.marked = false;
    clear_selection(program);
    EXPECT_FALSE(main.picMap.marked);
    for (bool* names : {&campaign.gDispUnitHQNames, &campaign.gDispUnitNames}) {
        main.picMap.marked = false;
        *names = true;
        clear_selection(program);
        EXPECT_TRUE(main.picMap.marked);
        *names = false;
    }
}

TEST_F(Selection, ClosingThePanelEndsWhatHangsOnIt) {
    press_unit(*first);
    main.transferring_fe = main.moving_waypoint = main.hierarchy_on = true;
    main.cmdTransferFE.enabled = true;
    main.cmdHierarchy.show_on(true);
    campaign.curUFE = std::make_shared<oUnitForceElements>();
    main.picMap.marked = false;
    main.setting_firefan = main.drawing_aoo = main.drawing_polygon = main.placing_shape = true;
    hide_unit_info(program);
    EXPECT_TRUE(main.setting_firefan && main.drawing_aoo && main.drawing_polygon && main.placing_shape);
    EXPECT_FALSE(main.picUnitInfo.visible || main.transferring_fe || main.moving_waypoint ||
                 main.hierarchy_on || main.cmdTransferFE.enabled || main.cmdHierarchy.on());
    EXPECT_EQ(campaign.curUFE, nullptr);
    EXPECT_EQ(campaign.curUnit, first);
    EXPECT_TRUE(main.picMap.marked);
}

TEST_F(Selection, BandTakesOnlyMarkersWhollyInside) {
    mouse_down(program, {}, {left_button, 0, 486, 485}); // the map under the marker
    EXPECT_TRUE(main.shpRubberband.visible);
    move(515, 516, left_button);
    release(515, 516);
    EXPECT_EQ(selected(), 1U);
    EXPECT_TRUE(main.picUnitInfo.visible);
    EXPECT_EQ(campaign.curUnit, first) << "and not the last there is";
    EXPECT_FALSE(main.shpRubberband.visible);
    struct Band {
        double left, top, right, bottom;
    };
    // A pixel less at each side.
    for (const auto& [left, top, right, bottom] :
         {Band{487, 485, 515, 516}, {486, 486, 515, 516}, {486, 485, 514, 516}, {486, 485, 515, 515}}) {
        mouse_down(program, {}, {left_button, 0, left, top});
        move(right, bottom, left_button);
        release(right, bottom);
        EXPECT_EQ(selected(), 0U) << left << " " << top << " " << right << " " << bottom;
    }
}

TEST_F(Selection, GroupKeepsItsDistancesInTheTray) {
    main.picUnitTray.width = main.picUnitTray.height = 400;
    second->ycoord = 560;
    marker(*second).top += 60;
    select_both();
    press_unit(*first, left_button, shift_key);
    drag_drop(program, DropSite::tray, 100, 120);
    EXPECT_EQ(marker(*first).container, Container::tray);
    EXPECT_EQ(marker(*second).container, Container::tray);
    EXPECT_EQ(marker(*second).left - marker(*first).left, 100);
    EXPECT_EQ(marker(*second).top - marker(*first).top, 60);
}

TEST_F(Selection, BandOfSeveralSetsTheMenusAndADeletedMarkerIsNeverTaken) {
    const auto third = add_marked("{3}", 700, 500);
    marker(*third).tag = deleted_tag;
    press(400, 400);
    move(900, 900, left_button);
    release(900, 900);
    EXPECT_EQ(selected(), 2U);
    EXPECT_TRUE(main.mnuDeleteSelected.enabled);
    EXPECT_EQ(marker(*third).border_style, 0);
}

TEST_F(Selection, BandGrowsToAllSidesButNotWithToolsThatMeasureOrDraw) {
    press(200, 300);
    move(100, 100, left_button);
    EXPECT_EQ(main.shpRubberband.left, 100);
    EXPECT_EQ(main.shpRubberband.top, 100);
    EXPECT_EQ(main.shpRubberband.width, 100);
    EXPECT_EQ(main.shpRubberband.height, 200);
    for (bool ToolFlags::*flag :
         {&ToolFlags::checking_path_range, &ToolFlags::checking_range, &ToolFlags::moving_line_point,
          &ToolFlags::deleting_line_point, &ToolFlags::deleting_line, &ToolFlags::drawing_lines}) {
        main.*flag = true;
        move(50, 50, left_button);
        EXPECT_EQ(main.shpRubberband.width, 100);
        main.*flag = false;
    }
    move(50, 50, right_button);
    EXPECT_EQ(main.shpRubberband.width, 100);
}

TEST_F(Selection, ShiftDragsAndTheDropPutsTheGrabbedPointThere) {
    press_unit(*first, left_button, shift_key);
    EXPECT_TRUE(main.dragging);
    EXPECT_EQ(main.unit_grab_x, 14);
    EXPECT_EQ(main.unit_grab_y, 15);
    drag_drop(program, DropSite::map, 1000.7, 1000.2);
    EXPECT_EQ(marker(*first).left, 986);
    EXPECT_EQ(marker(*first).top, 985);
    EXPECT_EQ(first->xcoord, 1000);
    EXPECT_EQ(first->ycoord, 1000);
    EXPECT_FALSE(main.dragging);
    drag_drop(program, DropSite::map, 1001, 1001);
    EXPECT_EQ(first->xcoord, 1002) << "halves go to the even neighbour";
}

TEST_F(Selection, DotMovesByTheRatioOfTheWidths) {
    move_unit_marker(program, 1, 1000, 1000);
    const OverviewDot& dot = main.shpUnit(1);
    main.unit_grab_x = 14;
    main.unit_grab_y = 15;
    move_unit_marker(program, 1, 1000, 1000);
    EXPECT_NEAR(dot.left, 986 / 24.0, 1e-9);
    EXPECT_EQ(dot.top, 39);
    EXPECT_TRUE(dot.visible);
}

TEST_F(Selection, MarkerDroppedOverTheEdgeKeepsItsCentreOnTheMap) {
    move_unit_marker(program, 1, -400, -400);
    EXPECT_EQ(marker(*first).left, -14.5);
    EXPECT_EQ(first->xcoord, 0);
    EXPECT_EQ(first->ycoord, 0);
    move_unit_marker(program, 1, 9000, 9000);
    EXPECT_EQ(first->xcoord, 5376);
    EXPECT_EQ(first->ycoord, 6000);
}

TEST_F(Selection, GroupKeepsItsShapeThroughADrop) {
    select_both();
    press_unit(*first, left_button, shift_key);
    drag_drop(program, DropSite::map, 1000, 2000);
    EXPECT_EQ(first->xcoord, 1000);
    EXPECT_EQ(second->xcoord, 1100);
    EXPECT_EQ(second->ycoord, 2000);
    EXPECT_EQ(selected(), 2U);
}

TEST_F(Selection, DropOnTheOverviewIsALongMove) {
    press_unit(*first, left_button, shift_key);
    main.picMap.height = 12000;
    drag_over(program, DropSite::overview, 50, 30);
    EXPECT_EQ(main.lblUIeastcoord.caption, "08.00");
    EXPECT_EQ(main.lblUInorthcoord.caption, "31.08");
    EXPECT_EQ(main.sbarMap.panels[0], "Eastern: 08.00 - Northern: 31.08");
    main.picMap.height = 6000;
    drag_drop(program, DropSite::overview, 50, 60);
    EXPECT_EQ(marker(*first).left, 1200 - 14);
    EXPECT_EQ(marker(*first).top, 1440 - 15);
}

TEST_F(Selection, DragTellsWhereTheCentreWouldLand) {
    press_unit(*first, left_button, shift_key);
    drag_over(program, DropSite::map, 224.5, 101.5);
    EXPECT_EQ(main.lblUIeastcoord.caption, "01.50");
    EXPECT_EQ(main.lblUInorthcoord.caption, "40.00");
    EXPECT_EQ(main.sbarMap.panels[0], "Eastern: 01.50 - Northern: 40.00");
}

TEST_F(Selection, AreaStaysInPlaceOnlyIfWanted) {
    first->area_of_opeartion->add(std::make_shared<oCoordinates>(oCoordinates{10, 20}));
    main.unit_grab_x = 14;
    main.unit_grab_y = 15;
    move_unit_marker(program, 1, 600, 500);
    EXPECT_EQ(first->area_of_opeartion->at(1)->x_cor, 10);
    mnuLeaveAOO_Click(program);
    move_unit_marker(program, 1, 750, 600);
    EXPECT_EQ(first->area_of_opeartion->at(1)->x_cor, 10 - 150);
    EXPECT_EQ(first->area_of_opeartion->at(1)->y_cor, 20 - 100);
}

TEST_F(Selection, MoveToTakesTheCoordinateExactlyAndCancelLeavesAll) {
    press_unit(*first, right_button);
    platform.on_modal["frmEnterCoord"] = [&](Form&) {
        campaign.gFindX = 225;
        campaign.gFindY = 102;
    };
    mnuUP_moveto_Click(program);
    EXPECT_EQ(first->xcoord, 225);
    EXPECT_EQ(first->ycoord, 102);
    EXPECT_EQ(marker(*first).left, 210.5);
    EXPECT_EQ(marker(*first).top, 86.5);
    platform.on_modal["frmEnterCoord"] = [&](Form&) {
        campaign.gCoordCancelled = true;
        campaign.gFindX = 900;
    };
    mnuUP_moveto_Click(program);
    EXPECT_EQ(first->xcoord, 225);
    platform.on_modal["frmEnterCoord"] = [&](Form&) { campaign.gFindX = 700; };
    mnuUP_moveto_Click(program);
    EXPECT_EQ(first->xcoord, 700) << "an earlier Cancel is forgotten";
}

TEST_F(Selection, MovedUnitGetsNoStateBarWhileTheyAreOff) {
    first->state = 2;
    move_unit_marker(program, 1, 1000, 1000);
    EXPECT_FALSE(main.shpUnitState.has(1));
}

TEST_F(Selection, UnitWhoseIDIsDeletedHasNoStateBar) {
    const auto unit = add_marked("Deleted", 700, 500);
    unit->state = 2;
    mnuUnitState_Click(program);
    EXPECT_FALSE(main.shpUnitState(unit->img_index).visible);
    move_unit_marker(program, unit->img_index, 1000, 1000);
    EXPECT_FALSE(main.shpUnitState(unit->img_index).visible);
}

TEST_F(Selection, StateBarsShowGoodToCriticalAndFollowTheMarker) {
    first->state = 1;
    second->state = 4;
    const auto third = add_marked("{3}", 700, 500);
    mnuUnitState_Click(program);
    EXPECT_TRUE(main.mnuUnitState.checked);
    const StateBar& bar = main.shpUnitState(1);
    EXPECT_EQ(bar.left, marker(*first).left + 17);
    EXPECT_EQ(bar.top, marker(*first).top + 26);
    EXPECT_EQ(bar.width, 12);
    EXPECT_EQ(bar.height, 5);
    EXPECT_EQ(bar.fill_colour, 0xFF00);
    EXPECT_EQ(main.shpUnitState(2).fill_colour, 0);
    EXPECT_TRUE(bar.visible && main.shpUnitState(2).visible);
    EXPECT_FALSE(main.shpUnitState(third->img_index).visible);
    move_unit_marker(program, 1, 1000, 1000);
    EXPECT_EQ(main.shpUnitState(1).left, marker(*first).left + 17);
    EXPECT_GT(main.shpUnitState(1).depth, marker(*first).depth);
    mnuUnitState_Click(program);
    EXPECT_FALSE(main.shpUnitState.has(1));
}

TEST_F(Selection, FailureInAPressIsToldAndTheProgramGoesOn) {
    press_unit(*second);
    marker(*first).tag = "{gone}";
    press_unit(*first);
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error 5 when displaying unit info."});
    main.drag_index = first->img_index;
    drag_drop(program, DropSite::map, 1, 1);
    EXPECT_EQ(platform.texts().back(), "Error 5 when moving a unit.");
}

TEST_F(Selection, MarkerDraggedWhileAToolTakesThePressKeepsItsPlace) {
    main.drawing_lines = main.line_ended = true;
    for (const auto& [site, container] :
         {std::pair(DropSite::tray, Container::tray), {DropSite::map, Container::map}}) {
        press_unit(*first, left_button, shift_key);
        ASSERT_TRUE(main.dragging);
        ASSERT_EQ(selected(), 0U);
        main.picMap.marked = false;
        drag_drop(program, site, 200, 200);
        EXPECT_EQ(first->xcoord, 500);
        EXPECT_EQ(marker(*first).container, container);
        EXPECT_TRUE(main.picMap.marked);
    }
}

TEST_F(Selection, TombThatCtrlHasShownIsToldAndTheSelectionStays) {
    press_unit(*second);
    marker(*first).tag = deleted_tag;
    campaign.colUnits->remove("{1}");
    press_unit(*first);
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error 5 when displaying unit info."});
    EXPECT_EQ(selected(), 1U);
    EXPECT_EQ(marker(*second).border_style, 1);
}

TEST_F(Selection, TombIsToldToCtrlTooAndLeavesToolsTheirPress) {
    marker(*first).tag = deleted_tag;
    campaign.colUnits->remove("{1}");
    press_unit(*first, left_button, ctrl_key);
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error 5 when displaying unit info."});
    EXPECT_EQ(marker(*first).border_style, 0);
    press_unit(*first, left_button, shift_key);
    EXPECT_FALSE(main.dragging) << "there is nothing to move";
    platform.messages.clear();
    cmdDrawLines_Click(program);
    cmdStartDrawLines_Click(program);
    press_unit(*first);
    EXPECT_EQ(campaign.colLines.count(), 1U);
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(Selection, ClearingSetsTheMenusOfOne) {
    select_both();
    press(900, 900, right_button);
    EXPECT_EQ(selected(), 0U);
    EXPECT_FALSE(main.mnuDeleteSelected.enabled || main.mnuUP_delete_all.enabled);
    EXPECT_TRUE(main.mnuUP_delete.enabled && main.mnuUP_edit.enabled && main.mnuUP_moveto.enabled);
}

TEST_F(Selection, SelectedMarkerIsThatOfTheFirstUnitIfItIsShownOnTheMap) {
    EXPECT_EQ(selected_marker(program), 0) << "none is selected";
    press_unit(*second);
    EXPECT_EQ(selected_marker(program), second->img_index);
    marker(*second).container = Container::tray;
    EXPECT_EQ(selected_marker(program), 0);
    marker(*second).container = Container::map;
    marker(*second).visible = false;
    EXPECT_EQ(selected_marker(program), 0);
    marker(*second).visible = true;
    second->img_index = 1;
    EXPECT_EQ(selected_marker(program), 0) << "that is another one's";
}

TEST_F(Selection, UnitWithoutAMarkerTouchesNoOtherOnes) {
    const auto bare = add_unit("{bare}");
    bare->img_index = first->img_index; // taken by now
    bare->state = 3;
    select_unit(program, bare);
    EXPECT_EQ(marker(*first).border_style, 0);
    mnuUnitState_Click(program);
    EXPECT_FALSE(main.shpUnitState.has(1) && main.shpUnitState(1).visible);
    campaign.colSelectedUnits->add(second, "{2}");
    main.drag_index = second->img_index;
    drag_drop(program, DropSite::map, 800, 800);
    EXPECT_EQ(first->xcoord, 500);
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error 340 when moving a unit."});
}

TEST_F(Selection, MovedMarkerComesToTheFrontAndIsShownWithItsDot) {
    marker(*first).visible = main.shpUnit(1).visible = false;
    move_unit_marker(program, 1, 700, 700);
    EXPECT_GT(marker(*first).depth, marker(*second).depth);
    EXPECT_TRUE(marker(*first).visible && main.shpUnit(1).visible);
}

TEST_F(Selection, CtrlPressTogglesBeforeTheLaterTools) {
    cmdDrawLines_Click(program);
    cmdStartDrawLines_Click(program);
    press_unit(*first, left_button, ctrl_key);
    EXPECT_EQ(selected(), 1U);
    EXPECT_TRUE(campaign.colLines.empty());
}

TEST_F(Selection, MoveToInTheTrayKeepsTheMarkerThere) {
    press_unit(*first);
    marker(*first).container = Container::tray;
    main.picUnitTray.width = 200;
    main.picUnitTray.height = 300;
    platform.on_modal["frmEnterCoord"] = [&](Form&) {
        campaign.gFindX = 900;
        campaign.gFindY = 100;
    };
    mnuUP_moveto_Click(program);
    EXPECT_EQ(marker(*first).container, Container::tray);
    EXPECT_EQ(marker(*first).left, 200 - marker(*first).width / 2);
    EXPECT_EQ(first->xcoord, 900);
}

TEST_F(Selection, EachBandBeginsWithNoSize) {
    press(400, 400);
    move(700, 700, left_button);
    release(700, 700);
    EXPECT_EQ(selected(), 2U);
    clear_selection(program);
    press(400, 400);
    EXPECT_EQ(main.shpRubberband.width + main.shpRubberband.height, 0);
    EXPECT_EQ(main.shpRubberband.left, 400);
    EXPECT_EQ(main.shpRubberband.top, 400);
    release(400, 400);
    EXPECT_EQ(selected(), 0U);
}

TEST_F(Selection, BandRestsWhileALabelIsWritten) {
    press(400, 400);
    program.forms["frmLabel"] = std::make_unique<Form>(program, "frmLabel", "");
    program.forms["frmLabel"]->visible = true;
    move(700, 700, left_button);
    EXPECT_EQ(main.shpRubberband.width, 0);
    program.forms["frmLabel"]->visible = false;
    move(700, 700, left_button);
    EXPECT_EQ(main.shpRubberband.width, 300);
}

TEST_F(Selection, LabelOverTheOverviewOrTheTrayChangesNothing) {
    press_unit(*first);
    MapLabel& label = main.lblUser.load(1);
    label.visible = true;
    main.lblUIeastcoord.caption = "east";
    mouse_down(program, {TargetKind::label, 1}, {left_button, shift_key, 30, 30});
    ASSERT_TRUE(main.dragging);
    main.sbarMap.panels[0] = "as it was";
    drag_over(program, DropSite::overview, 20, 20);
    EXPECT_EQ(main.lblUIeastcoord.caption, "east");
    EXPECT_EQ(main.sbarMap.panels[0], "as it was");
    main.picMap.marked = false;
    drag_drop(program, DropSite::tray, 20, 20);
    EXPECT_FALSE(main.picMap.marked || main.dragging);
    EXPECT_EQ(label.left, 0);
}

TEST_F(Selection, StateBarsNeedNoPaintOfTheLayers) {
    main.picMap.marked = false;
    mnuUnitState_Click(program);
    EXPECT_TRUE(main.mnuUnitState.checked);
    EXPECT_FALSE(main.picMap.marked);
}

TEST_F(Selection, RightPressOnAGroupOpensTheMenuAndKeepsTheGroup) {
    select_both();
    press_unit(*first, right_button);
    EXPECT_EQ(selected(), 2U);
    EXPECT_EQ(platform.log.back(), std::string("popup ") + mnuUnitPopup);
}

TEST_F(Selection, BarOfAMarkerMadeLaterAppearsWhenItMoves) {
    mnuUnitState_Click(program);
    const auto later = add_marked("{3}", 700, 500);
    later->state = 2;
    EXPECT_FALSE(main.shpUnitState.has(3) && main.shpUnitState(3).visible);
    move_unit_marker(program, 3, 900, 900);
    EXPECT_TRUE(main.shpUnitState(3).visible);
    EXPECT_EQ(main.shpUnitState(3).fill_colour, 0xFFFF);
    later->state = 3;
    refresh_unit_states(program);
    EXPECT_EQ(main.shpUnitState(3).fill_colour, 255);
}

TEST_F(Selection, AreaFarAwayCannotOverflow) {
    first->area_of_opeartion->add(std::make_shared<oCoordinates>(oCoordinates{-2147483647, 0}));
    mnuLeaveAOO_Click(program);
    EXPECT_EQ(number_of([&] { move_unit_marker(program, 1, 4000, 500); }), 6);
}

TEST_F(Selection, DragScrollsAtTheEdgeOfTheView) {
    main.edge_scrolling = true;
    main.scrlHMap.value = 500;
    main.picMap.left = -500;
    press_unit(*first, left_button, shift_key);
    drag_over(program, DropSite::map, 503, 300);
    EXPECT_EQ(main.scrlHMap.value, 490);
}

TEST_F(Selection, BandTakesHiddenMarkersAndThoseOfTheTrayByTheirPlaces) {
    marker(*first).visible = false;
    marker(*second).container = Container::tray;
    press(400, 400);
    move(700, 700, left_button);
    release(700, 700);
    EXPECT_EQ(selected(), 2U);
}

TEST_F(Selection, MembersOfAGroupAreClampedEachForItself) {
    select_both();
    press_unit(*first, left_button, shift_key);
    drag_drop(program, DropSite::map, 5350, 500);
    EXPECT_EQ(first->xcoord, 5350);
    EXPECT_EQ(second->xcoord, 5376);
    EXPECT_EQ(marker(*second).container, Container::map);
    press_unit(*first, left_button, shift_key);
    drag_drop(program, DropSite::tray, 50, 50);
    EXPECT_EQ(marker(*second).container, Container::tray);
}
