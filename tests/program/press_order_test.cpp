#include "mapview/move_unit.h"
#include "mapview/scrolling.h"
#include "operations/range_tools.h"
#include "operations/unit_tools.h"
#include "program/press_order.h"

#include "mapview/selection.h"
#include "tests/support/map_test.h"

#include <functional>
#include <random>
#include <set>

namespace {

/// How to make the condition of a row true.
struct RowState {
    int number;
    std::function<void(Program&)> set;
};

const std::vector<RowState> states{{1, [](Program& p) { p.campaign.moving_fire_mission = true; }},
                                   {2, [](Program& p) { p.campaign.selecting_fire_mission = true; }},
                                   {3, [](Program& p) { p.campaign.placing_fire_mission = true; }},
                                   {4, [](Program& p) { p.main.moving_polygon = true; }},
                                   {5, [](Program& p) { p.main.inserting_polygon_point = true; }},
                                   {6, [](Program& p) { p.main.deleting_polygon_point = true; }},
                                   {7, [](Program& p) { p.main.deleting_polygon = true; }},
                                   {8, [](Program& p) { p.main.drawing_polygon = true; }},
                                   {9, [](Program& p) { p.main.moving_waypoint = true; }},
                                   {10, [](Program& p) { p.main.set_waypoints = true; }},
                                   {11, [](Program& p) { p.main.showing_range_circles = true; }},
                                   {12, [](Program& p) { p.main.checking_range = true; }},
                                   {13, [](Program& p) { p.main.checking_path_range = true; }},
                                   {15, [](Program& p) { p.main.drawing_aoo = true; }},
                                   {16, [](Program& p) { p.main.transferring_fe = true; }},
                                   {17,
                                    [](Program& p) {
                                        p.campaign.colSelectedUnits->add(std::make_shared<oUnits>(), "a");
                                        p.campaign.colSelectedUnits->add(std::make_shared<oUnits>(), "b");
                                    }},
                                   {18, [](Program& p) { p.main.setting_firefan = true; }},
                                   {19, [](Program& p) { p.main.placing_shape = true; }},
                                   {20, [](Program& p) { p.main.moving_shape = true; }},
                                   {22, [](Program& p) { p.main.place_unit = true; }},
                                   {23, [](Program& p) { p.main.inserting_line_point = true; }},
                                   {24, [](Program& p) { p.main.moving_line_point = true; }},
                                   {26, [](Program& p) { p.main.deleting_line = true; }},
                                   {27, [](Program& p) { p.main.deleting_line_point = true; }},
                                   {28, [](Program& p) { p.main.drawing_lines = true; }},
                                   {29, [](Program& p) { p.campaign.placing_label = true; }},
                                   {30, [](Program& p) { p.main.picPlaceShapes.visible = true; }}};

/// The rows that a press acts on, in order; every row answers as the real one goes on or ends.
std::vector<int> acted;

bool goes_on(int number) {
    return (number >= 11 && number <= 14) || number == 21 || (number >= 30 && number <= 32);
}

template <std::size_t Row> Outcome record(Program& program, const MapPress& press) {
    static_cast<void>(program);
    static_cast<void>(press);
    const int number = static_cast<int>(Row);
    acted.push_back(number);
    return goes_on(number) ? Outcome::goes_on : Outcome::done;
}

template <std::size_t... Rows> std::vector<PressRow> recording(std::index_sequence<Rows...> /*rows*/) {
    std::vector<PressRow> rows(tool_order().presses.begin(), tool_order().presses.end());
    ((rows[Rows].act = record<Rows>), ...);
    return rows;
}

class PressOrder : public MapTest {
  protected:
    PressOrder() : rows(recording(std::make_index_sequence<34>())) { program.tool_order.presses = rows; }

    void clear_tools() {
        static_cast<ToolFlags&>(main) = {};
        campaign.placing_label = campaign.placing_fire_mission = false;
        campaign.selecting_fire_mission = campaign.moving_fire_mission = false;
        campaign.colSelectedUnits.drop();
        main.picPlaceShapes.visible = false;
    }

    /// What acts when the conditions of both hold: all in order, up to the first that ends the press.
    static std::vector<int> together(const std::vector<int>& one, const std::vector<int>& other) {
        std::set<int> all(one.begin(), one.end());
        all.insert(other.begin(), other.end());
        std::vector<int> acting;
        for (const int number : all) {
            acting.push_back(number);
            if (!goes_on(number)) break;
        }
        return acting;
    }

    std::vector<int> acting(int button) {
        acted.clear();
        mouse_down(program, {}, {button, 0, 100, 100});
        return acted;
    }

    std::vector<PressRow> rows;
};

} // namespace

TEST(PressTable, RowsStandInOrderEachOnce) {
    int number = 0;
    for (const PressRow& row : tool_order().presses) EXPECT_EQ(row.number, number++);
    EXPECT_EQ(number, 34);
}

TEST_F(PressOrder, PressWithNoToolClosesThePanelAndStartsABandOrAPan) {
    EXPECT_EQ(acting(left_button), (std::vector<int>{21, 31}));
    EXPECT_EQ(acting(right_button), (std::vector<int>{21, 32}));
    EXPECT_EQ(acting(4), (std::vector<int>{21}));
}

TEST_F(PressOrder, EachRowActsOnItsButtonsAlone) {
    struct Expected {
        std::vector<int> left;
        std::vector<int> right;
        std::vector<int> middle;
    };
    const auto only = [](int row) { return std::vector<int>{row}; };
    const std::vector<int> left{21, 31};
    const std::vector<int> right{21, 32};
    const std::vector<int> middle{21};
    const std::map<int, Expected> expected{{1, {only(1), only(1), only(1)}},
                                           {2, {only(2), only(2), only(2)}},
                                           {3, {only(3), only(3), only(3)}},
                                           {4, {only(4), right, middle}},
                                           {5, {only(5), right, middle}},
                                           {6, {only(6), right, middle}},
                                           {7, {only(6), only(7), middle}},
                                           {8, {only(8), only(8), only(8)}},
                                           {9, {only(9), right, middle}},
                                           {10, {only(10), only(10), only(10)}},
                                           {11, {{11, 21, 31}, {11, 21, 32}, {11, 21}}},
                                           {12, {{12, 21, 31}, {21, 32, 33}, middle}},
                                           {13, {{13, 21, 31}, {14, 21, 32}, middle}},
                                           {15, {only(15), only(15), only(15)}},
                                           {16, {only(16), only(16), only(16)}},
                                           {17, {only(17), only(17), only(17)}},
                                           {18, {only(18), only(18), only(18)}},
                                           {19, {only(19), only(19), only(19)}},
                                           {20, {only(20), only(20), only(20)}},
                                           {22, {{21, 22}, right, middle}},
                                           {23, {{21, 23}, right, middle}},
                                           {24, {{21, 24}, {21, 25}, middle}},
                                           {26, {{21, 26}, {21, 26}, {21, 26}}},
                                           {27, {{21, 27}, {21, 27}, {21, 27}}},
                                           {28, {{21, 28}, {21, 28}, {21, 28}}},
                                           {29, {{21, 29}, {21, 29}, {21, 29}}},
                                           {30, {{21, 30, 31}, right, middle}}};
    for (const RowState& state : states) {
        const Campaign campaign_before = campaign;
        const ToolFlags flags_before = main;
        state.set(program);
        EXPECT_EQ(acting(left_button), expected.at(state.number).left) << state.number;
        EXPECT_EQ(acting(right_button), expected.at(state.number).right) << state.number;
        EXPECT_EQ(acting(4), expected.at(state.number).middle) << state.number;
        campaign = campaign_before;
        static_cast<ToolFlags&>(main) = flags_before;
        campaign.colSelectedUnits.drop();
        main.picPlaceShapes.visible = false;
    }
}

TEST_F(PressOrder, OfTwoToolsTheEarlierActsAndEndsUnlessItGoesOn) {
    for (const RowState& first : states)
        for (const RowState& second : states) {
            if (first.number >= second.number) continue;
            for (const int button : {left_button, right_button, 4}) {
                clear_tools();
                first.set(program);
                const std::vector<int> alone = acting(button);
                clear_tools();
                second.set(program);
                const std::vector<int> other = acting(button);
                first.set(program);
                EXPECT_EQ(acting(button), together(alone, other))
                    << first.number << " and " << second.number << " with button " << button;
            }
        }
}

TEST_F(PressOrder, MarkerOffersThePressToTheEarlyRowsAndThenToLineAndLabelTools) {
    const auto unit = add_marked("{1}", 500, 500);
    for (const RowState& state : states) {
        clear_tools();
        main.picUnitInfo.visible = false;
        state.set(program);
        acted.clear();
        press_unit(*unit);
        const int n = state.number;
        const bool map_only = n == 17 || n == 30;
        const int row = n == 7 ? 6 : n == 16 ? 0 : n;
        EXPECT_EQ(acted, map_only ? std::vector<int>{} : std::vector<int>{row}) << n;
        const bool goes_on = (n >= 11 && n <= 13) || map_only;
        EXPECT_EQ(main.picUnitInfo.visible, goes_on && n != 17) << n;
    }
}

TEST_F(MapTest, MarkerInHandChangesUnlessThreeToolsAreOnTogether) {
    const auto unit = add_marked("{1}", 500, 500);
    program.tool_order = {};
    main.place_unit = main.moving_line_point = main.drawing_lines = true;
    press_unit(*unit);
    EXPECT_EQ(main.drag_index, 0);
    main.place_unit = false;
    press_unit(*unit);
    EXPECT_EQ(main.drag_index, 1);
}

TEST_F(MapTest, PressOnALabelIsOfferedLikeOneOnTheMap) {
    MapLabel& label = main.lblUser.load(1);
    label.visible = true;
    label.left = label.top = 100;
    label.width = label.height = 50;
    main.checking_range = true;
    press(110, 120);
    EXPECT_EQ(main.shpAnchor[0].left, 110 - 3.5);
}

TEST_F(MapTest, AbortingATransferAsks) {
    main.transferring_fe = true;
    platform.answers = {Answer::no};
    press(2000, 2000);
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Abort transfering force element?"});
    EXPECT_TRUE(main.transferring_fe);
    platform.answers = {Answer::yes};
    main.picUnitInfo.visible = true;
    press(2000, 2000);
    EXPECT_FALSE(main.transferring_fe);
    EXPECT_TRUE(main.picUnitInfo.visible) << "the press ends there";
    EXPECT_FALSE(main.shpRubberband.visible);
}

TEST_F(MapTest, RightPressIsStoredWhicheverRowActs) {
    main.drawing_aoo = true;
    press(700, 800, right_button);
    EXPECT_EQ(main.popup_x, 700);
    EXPECT_EQ(main.popup_y, 800);
}

TEST_F(MapTest, DrawingLinesAndSelectingMissionsKeepARightReleaseFromPanning) {
    for (bool* flag : {&main.drawing_lines, &campaign.selecting_fire_mission}) {
        *flag = true;
        main.popup_x = main.popup_y = 500;
        release(400, 400, right_button);
        EXPECT_EQ(main.scrlHMap.value, 0);
        *flag = false;
    }
    main.aoo_popup_guard = true;
    release(400, 400);
    EXPECT_TRUE(main.aoo_popup_guard) << "a left release is not guarded against";
    release(400, 400, right_button);
    EXPECT_FALSE(main.aoo_popup_guard);
    EXPECT_EQ(main.scrlHMap.value, 0);
    release(400, 400, right_button);
    EXPECT_EQ(main.scrlHMap.value, 100);
}

TEST_F(MapTest, ScratchLinesFollowThePointerWithTheirFreeEnds) {
    const auto ends = [](const LineControl& line) {
        return std::vector<double>{line.x1, line.y1, line.x2, line.y2};
    };
    add_marked("{1}", 500, 500);
    main.lblUser.load(1);
    main.lblShapeLabel.load(1);
    for (const HitTarget target : {HitTarget{}, HitTarget{TargetKind::unit, 1},
                                   HitTarget{TargetKind::label, 1}, HitTarget{TargetKind::shape_label, 1}}) {
        main.linTempLine = {1, 2, 3, 4, true};
        main.linTempLine2 = {5, 6, 7, 8, true};
        mouse_move(program, target, {0, 0, 50, 60});
        EXPECT_EQ(ends(main.linTempLine), (std::vector<double>{1, 2, 50, 60}));
        EXPECT_EQ(ends(main.linTempLine2), (std::vector<double>{5, 6, 50, 60}));
        main.linTempLine.visible = false;
        mouse_move(program, target, {0, 0, 70, 80});
        EXPECT_EQ(ends(main.linTempLine), (std::vector<double>{1, 2, 50, 60})) << "hidden";
        EXPECT_EQ(ends(main.linTempLine2), (std::vector<double>{5, 6, 70, 80}));
    }
}

TEST_F(MapTest, RangeToolsLetALeftPressGoOnToPanelSelectionAndBand) {
    for (bool* tool : {&main.checking_range, &main.checking_path_range, &main.showing_range_circles}) {
        const auto unit = add_marked("{" + std::to_string(campaign.gNextUnitIndex) + "}", 500, 500);
        main.picUnitInfo.visible = main.shpRubberband.visible = false;
        press_unit(*unit);
        *tool = true;
        press(2000, 2000);
        EXPECT_FALSE(main.picUnitInfo.visible);
        EXPECT_EQ(selected(), 0U);
        EXPECT_TRUE(main.shpRubberband.visible);
        *tool = false;
        release(2000, 2000);
    }
}

TEST_F(MapTest, ToolsThatEndAPressStartNoBand) {
    for (bool* tool : {&main.drawing_aoo, &main.setting_firefan, &main.inserting_line_point,
                       &main.moving_line_point, &main.deleting_line, &main.deleting_line_point}) {
        *tool = true;
        press(2000, 2000);
        EXPECT_FALSE(main.shpRubberband.visible);
        *tool = false;
        platform.messages.clear();
    }
}

TEST_F(MapTest, RightPressOnAMarkerLeavesTheRangeToolOn) {
    const auto unit = add_marked("{1}", 500, 500);
    main.checking_range = true;
    press_unit(*unit, right_button);
    EXPECT_TRUE(main.checking_range);
    press(2000, 2000, right_button);
    EXPECT_FALSE(main.checking_range);
}

TEST_F(MapTest, RightPressWithAGroupTakesOnlyThatOff) {
    press_unit(*add_marked("{1}", 500, 500));
    press_unit(*add_marked("{2}", 600, 500), left_button, ctrl_key);
    main.checking_range = true;
    press(2000, 2000, right_button);
    EXPECT_EQ(selected(), 0U);
    EXPECT_TRUE(main.checking_range);
}

TEST_F(MapTest, RangeToolsLetARightPressGoOnToTheGroupAndAMiddleOneToThePanel) {
    const auto first = add_marked("{1}", 500, 500);
    const auto second = add_marked("{2}", 600, 500);
    for (bool* tool : {&main.checking_path_range, &main.showing_range_circles}) {
        *tool = true;
        press_unit(*first);
        press(2000, 2000, 4);
        EXPECT_FALSE(main.picUnitInfo.visible);
        press_unit(*first);
        press_unit(*second, left_button, ctrl_key);
        press(2000, 2000, right_button);
        EXPECT_EQ(selected(), 0U);
        EXPECT_TRUE(main.map_popup_shown);
        *tool = main.map_popup_shown = false;
    }
}

TEST_F(MapTest, ToolsActAtTheMapPointOfAMarker) {
    const auto unit = add_marked("{1}", 500, 500);
    main.checking_range = true;
    mouse_down(program, {TargetKind::unit, 1}, {left_button, 0, 508, 493});
    EXPECT_EQ(main.shpAnchor[0].left, 508 - 3.5);
    EXPECT_EQ(main.shpAnchor[0].top, 493 - 3.5);
    EXPECT_EQ(unit->xcoord, 500);
}

TEST_F(MapTest, AbortedTransferSwitchesItsButtonOff) {
    main.transferring_fe = main.cmdTransferFE.enabled = true;
    platform.answers = {Answer::yes};
    press(2000, 2000);
    EXPECT_FALSE(main.cmdTransferFE.enabled);
}

TEST_F(MapTest, FirefanToolEndsEvenWhenNothingCanBeTurned) {
    main.setting_firefan = true;
    press(2000, 2000);
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error 91 when moving firefans."});
    EXPECT_FALSE(main.setting_firefan);
}

namespace {

class LabelDrag : public MapTest {
  protected:
    LabelDrag() {
        auto label = std::make_shared<oLabels>();
        label->ID = "{L}";
        campaign.colLabels->add(label, label->ID);
        put(main.lblUser.load(1), "{L}", 100);
        auto shape = std::make_shared<oShapes>();
        shape->ID = "{S}";
        campaign.colShapes->add(shape, shape->ID);
        put(main.lblShapeLabel.load(1), "{S}", 400);
        MapShape& outline = main.shpShape.load(1);
        outline.width = 200;
        outline.height = 100;
    }

    void put(MapLabel& label, const std::string& tag, double place) {
        label.tag = tag;
        label.visible = true;
        label.left = label.top = place;
        label.width = 60;
        label.height = 20;
        main.bring_to_front(label);
    }
};

} // namespace

TEST_F(LabelDrag, ShiftDragMovesALabelByWhereItWasGrabbed) {
    press(110, 105);
    EXPECT_FALSE(main.dragging) << "a plain press never drags";
    press(110, 105, left_button, shift_key);
    ASSERT_TRUE(main.dragging);
    EXPECT_FALSE(main.shpRubberband.visible);
    drag_over(program, DropSite::map, 205, 87);
    EXPECT_EQ(main.lblUIeastcoord.caption, "01.50") << "of the centre";
    main.picMap.marked = false;
    drag_drop(program, DropSite::map, 710, 805);
    EXPECT_EQ(main.lblUser(1).left, 700);
    EXPECT_EQ(main.lblUser(1).top, 800);
    EXPECT_EQ(campaign.colLabels->at(1)->xcoord, 700);
    EXPECT_EQ(campaign.colLabels->at(1)->ycoord, 800);
    EXPECT_TRUE(main.picMap.marked);
    EXPECT_FALSE(main.dragging);
}

TEST_F(LabelDrag, TellsWhereTheCentreWouldLand) {
    for (const double place : {100, 400}) { // the label, then the caption
        press(place + 10, place + 5, left_button, shift_key);
        drag_over(program, DropSite::map, 225 + 10 - 60 / 2, 102 + 5 - 20 / 2);
        EXPECT_EQ(main.sbarMap.panels[0], "Eastern: 01.50 - Northern: 40.00");
        main.dragging = false;
    }
}

TEST_F(LabelDrag, OnlyTheLeftButtonDragsWithShift) {
    for (const int button : {right_button, 4}) {
        press(110, 105, button, shift_key);
        EXPECT_FALSE(main.dragging);
    }
}

TEST_F(LabelDrag, CaptionTakesItsShapeAlong) {
    press(410, 405, left_button, shift_key);
    drag_drop(program, DropSite::map, 1010, 1005);
    EXPECT_EQ(main.lblShapeLabel(1).left, 1000);
    EXPECT_EQ(campaign.colShapes->at(1)->xcoord, 1030);
    EXPECT_EQ(campaign.colShapes->at(1)->ycoord, 1010);
    EXPECT_EQ(main.shpShape(1).left, 1030 - 100);
    EXPECT_EQ(main.shpShape(1).top, 1010 - 50);
    EXPECT_GT(main.lblShapeLabel(1).depth, main.shpShape(1).depth);
}

TEST_F(LabelDrag, TrayAndOverviewTakeNoLabels) {
    press(110, 105, left_button, shift_key);
    drag_drop(program, DropSite::tray, 10, 10);
    press(110, 105, left_button, shift_key);
    drag_drop(program, DropSite::overview, 10, 10);
    EXPECT_EQ(main.lblUser(1).left, 100);
    EXPECT_TRUE(platform.texts().empty());
}

TEST_F(LabelDrag, ReleaseOverALabelLeavesNoBandAndSwallowsNoLaterRelease) {
    const auto unit = add_marked("{1}", 2000, 2000);
    press(110, 105);
    EXPECT_TRUE(main.shpRubberband.visible);
    control_MouseUp(program, {TargetKind::label, 1});
    EXPECT_FALSE(main.shpRubberband.visible);
    press_unit(*unit);
    press_unit(*add_marked("{2}", 2100, 2000), left_button, ctrl_key);
    press(110, 105, right_button);
    EXPECT_TRUE(main.map_popup_shown);
    control_MouseUp(program, {TargetKind::shape_label, 1});
    EXPECT_FALSE(main.map_popup_shown);
}

TEST_F(MapTest, EndOfAPressTakesAwayWhatOnlyItsReleaseWouldEnd) {
    press(2000, 2000);
    main.shpTrayRubberband.visible = main.map_popup_shown = main.dragging = true;
    end_press(program);
    EXPECT_FALSE(main.shpRubberband.visible || main.shpTrayRubberband.visible || main.map_popup_shown ||
                 main.dragging);
}

TEST_F(MapTest, AnyReleaseConsumesTheOneThatFollowsAGroupTakenOff) {
    press_unit(*add_marked("{1}", 500, 500));
    press_unit(*add_marked("{2}", 600, 500), left_button, ctrl_key);
    press(2000, 2000, right_button);
    release(1000, 1000, left_button);
    EXPECT_FALSE(main.map_popup_shown);
}

TEST_F(MapTest, MiddleButtonDropsRangeCirclesAndDrawsNoArea) {
    main.showing_range_circles = true;
    press(300, 300);
    EXPECT_FALSE(campaign.colCirclePoints.empty());
    press(300, 300, 4);
    EXPECT_TRUE(campaign.colCirclePoints.empty());
    main.showing_range_circles = false;
    campaign.curUnit = add_marked("{1}", 500, 500);
    main.drawing_aoo = true;
    press(300, 300, 4);
    EXPECT_TRUE(campaign.curUnit->area_of_opeartion.empty());
    EXPECT_TRUE(main.drawing_aoo);
}

TEST_F(MapTest, ToolsOfThePanelSurviveAScroll) {
    main.setting_firefan = main.drawing_aoo = true;
    scroll_horizontally_to(program, 300);
    EXPECT_TRUE(main.setting_firefan && main.drawing_aoo);
}

TEST_F(MapTest, FirefanToolFencesNothingOff) {
    main.cmdLoad.enabled = true;
    main.cmdLabel.enabled = false;
    cmdSetFirefan_Click(program);
    EXPECT_TRUE(main.cmdLoad.enabled);
    cmdSetFirefan_Click(program);
    EXPECT_FALSE(main.cmdLabel.enabled);
}

TEST_F(MapTest, AreaStaysInPlaceHoweverTheUnitIsMoved) {
    const auto unit = add_marked("{1}", 500, 500);
    unit->area_of_opeartion->add(std::make_shared<oCoordinates>(oCoordinates{10, 20}));
    mnuLeaveAOO_Click(program);
    const auto place = [&] {
        return std::pair(unit->xcoord + unit->area_of_opeartion->at(1)->x_cor,
                         unit->ycoord + unit->area_of_opeartion->at(1)->y_cor);
    };
    press_unit(*unit);
    platform.on_modal["frmEnterCoord"] = [&](Form&) {
        campaign.gFindX = 800;
        campaign.gFindY = 900;
    };
    mnuUP_moveto_Click(program);
    EXPECT_EQ(unit->xcoord, 800);
    EXPECT_EQ(place(), std::pair(510, 520));
    press_unit(*unit, left_button, shift_key);
    drag_drop(program, DropSite::overview, 50, 60);
    EXPECT_EQ(place(), std::pair(510, 520));
}
