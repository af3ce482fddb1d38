#include "annotation/arrowhead.h"
#include "annotation/line_panel.h"
#include "annotation/line_press.h"
#include "mapview/tool_modes.h"
#include "tests/support/map_test.h"

namespace {

using Texts = std::vector<std::string>;
using Place = std::pair<int, int>;

class LineTool : public MapTest {
  protected:
    LineTool() {
        main.picUnitInfo.left = 4;
        main.picUnitInfo.top = 296;
        main.picUnitInfo.width = 224;
        main.picUnitInfo.height = 300;
        cmdDrawLines_Click(program);
    }

    void draw() { cmdStartDrawLines_Click(program); }

    std::shared_ptr<oLines> add_line(const std::vector<Place>& places) {
        auto line = std::make_shared<oLines>();
        line->linewidth = 1;
        for (const auto& [x, y] : places)
            line->colCoords->add(std::make_shared<oCoordinates>(oCoordinates{x, y}));
        campaign.colLines->add(line);
        return line;
    }

    static std::vector<Place> places(const oLines& line) {
        std::vector<Place> all;
        for (const auto& vertex : line.colCoords) all.emplace_back(vertex->x_cor, vertex->y_cor);
        return all;
    }

    static std::vector<int> barbs(const oLines& line) {
        return {line.arrow1_x, line.arrow1_y, line.arrow2_x, line.arrow2_y};
    }

    oLines& line(std::size_t position) { return *campaign.colLines->at(position); }
};

} // namespace

TEST_F(LineTool, OpeningPutsThePanelOverTheUnitInfoAndKeepsOtherToolsAway) {
    main.picUnitInfo.visible = main.placing_shape = main.picPlaceShapes.visible = true;
    main.cmdPlaceShape.show_on(true);
    main.line_ended = false;
    cmdDrawLines_Click(program); // closes
    EXPECT_FALSE(main.picDrawLines.visible);
    cmdDrawLines_Click(program);
    EXPECT_TRUE(main.picDrawLines.visible && main.cmdDrawLines.on() && main.line_ended);
    EXPECT_EQ(main.picDrawLines.left, 4);
    EXPECT_EQ(main.picDrawLines.height, 300);
    EXPECT_FALSE(main.picUnitInfo.visible || main.placing_shape || main.picPlaceShapes.visible ||
                 main.cmdPlaceShape.on());
    EXPECT_FALSE(main.cmdDrawLines.enabled || main.cmdTownsData.enabled || main.cmdFindCoord.enabled);
}

TEST_F(LineTool, FifteenButtonsGoAndComeTogether) {
    enable_all(program);
    disable_all(program);
    disable_all(program);
    Toolbar& tools = main;
    const std::vector<Button*> all{&tools.cmdDrawLines,      &tools.cmdCreateShapes,  &tools.cmdLabel,
                                   &tools.cmdCreateUnits,    &tools.cmdDrawPolygon,   &tools.cmdRangecheck,
                                   &tools.cmdPathRange,      &tools.cmdFindCoord,     &tools.cmdUnitTray,
                                   &tools.cmdShowFullscreen, &tools.cmdSavemap,       &tools.cmdSnapshot,
                                   &tools.cmdFireMissions,   &tools.cmdEditGMPlayers, &tools.cmdTownsData};
    for (const Button* button : all) EXPECT_FALSE(button->enabled);
    for (const Button* button : {&tools.cmdLoad, &tools.cmdSave, &tools.cmdGrid, &tools.cmdLegend,
                                 &tools.cmdEdgescroll, &tools.cmdSetDateTime})
        EXPECT_TRUE(button->enabled);
    enable_all(program);
    for (const Button* button : all) EXPECT_TRUE(button->enabled);
}

TEST_F(LineTool, LeavingEndsEveryModeAndDoesNotBringThePanelBack) {
    cmdMovePoint_Click(program);
    main.linTempLine.visible = main.linTempLine2.visible = true;
    main.drawing_lines = main.deleting_line = main.deleting_line_point = main.inserting_line_point = true;
    cmdExitDrawLine_Click(program);
    EXPECT_FALSE(main.drawing_lines || main.deleting_line || main.deleting_line_point ||
                 main.moving_line_point || main.inserting_line_point || main.linTempLine.visible ||
                 main.linTempLine2.visible || main.picDrawLines.visible || main.picUnitInfo.visible);
    EXPECT_TRUE(main.line_ended && main.cmdDrawLines.enabled && main.cmdDeleteLine.enabled);
    EXPECT_FALSE(main.cmdDrawLines.on() || main.cmdMovePoint.on());
}

TEST_F(LineTool, ModesExcludeEachOtherByDisabling) {
    using Click = void (*)(Program&);
    const std::vector<std::pair<Click, Button LinePanel::*>> modes{
        {cmdStartDrawLines_Click, &LinePanel::cmdStartDrawLines},
        {cmdDeleteLine_Click, &LinePanel::cmdDeleteLine},
        {cmdMovePoint_Click, &LinePanel::cmdMovePoint},
        {cmdDeletePoint_Click, &LinePanel::cmdDeletePoint},
        {cmdInsertPointLine_Click, &LinePanel::cmdInsertPointLine}};
    for (const auto& [click, own] : modes) {
        click(program);
        EXPECT_TRUE((main.*own).on() && (main.*own).enabled);
        for (const auto& [other_click, other] : modes)
            if (other != own) EXPECT_FALSE((main.*other).enabled);
        EXPECT_FALSE(main.cmdDeleteAllLines.enabled);
        EXPECT_TRUE(main.cmdExitDrawLine.enabled);
        click(program);
        EXPECT_FALSE((main.*own).on());
        for (const auto& [other_click, other] : modes) EXPECT_TRUE((main.*other).enabled);
        EXPECT_TRUE(main.cmdDeleteAllLines.enabled);
    }
}

TEST_F(LineTool, PanelStartsAsUsersKnowIt) {
    EXPECT_EQ(main.cboBoundrySize.text, "Battalion");
    EXPECT_EQ(main.cboBoundrySize.rows,
              (Texts{"Corps", "Division", "Brigade", "Regiment", "Battalion", "Company"}));
    EXPECT_FALSE(main.cboBoundrySize.enabled || main.chkArrow.value || main.chkBoundry.value);
    EXPECT_TRUE(main.optSingleLine.value && main.optLineStyle[1].value);
    EXPECT_EQ(main.scrlLineWidth.min, 1);
    EXPECT_EQ(main.scrlLineWidth.max, 50);
    EXPECT_EQ(main.scrlLineWidth.small_change, 1);
    EXPECT_EQ(main.scrlLineWidth.large_change, 5);
}

TEST_F(LineTool, ArrowAndBoundaryExcludeEachOther) {
    main.chkArrow.value = true;
    chkArrow_Click(program);
    EXPECT_FALSE(main.chkBoundry.enabled);
    main.chkArrow.value = false;
    chkArrow_Click(program);
    EXPECT_TRUE(main.chkBoundry.enabled);
    main.chkBoundry.value = true;
    chkBoundry_Click(program);
    EXPECT_FALSE(main.chkArrow.enabled);
    EXPECT_TRUE(main.cboBoundrySize.enabled);
    main.chkBoundry.value = false;
    chkBoundry_Click(program);
    EXPECT_TRUE(main.chkArrow.enabled);
    EXPECT_FALSE(main.cboBoundrySize.enabled);
}

TEST_F(LineTool, EverySettingEndsDrawing) {
    const std::vector<std::function<void()>> settings{
        [&] { cboBoundrySize_Change(program); }, [&] { chkArrow_Click(program); },
        [&] { chkBoundry_Click(program); },      [&] { optLineStyle_Click(program, 3); },
        [&] { optPolyline_Click(program); },     [&] { optSingleLine_Click(program); },
        [&] { scrlLineWidth_Change(program); },  [&] { cmdLineColor_Click(program); }};
    platform.chosen_colour = 77;
    for (const auto& change : settings) {
        draw();
        EXPECT_TRUE(main.drawing_lines);
        change();
        EXPECT_FALSE(main.drawing_lines);
    }
    EXPECT_EQ(main.lineEx[2].style, 3);
    EXPECT_EQ(main.lineEx[0].colour, 77);
    main.scrlLineWidth.value = 9;
    scrlLineWidth_Change(program);
    EXPECT_EQ(main.lineEx[1].width, 9);
    EXPECT_EQ(main.lblLineWidth.caption, "9");
}

TEST_F(LineTool, CancelledColourChangesNothing) {
    draw();
    cmdLineColor_Click(program);
    EXPECT_TRUE(main.drawing_lines);
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(LineTool, BoundaryOfNoEchelonIsRefusedButTheFlagStaysOn) {
    main.chkBoundry.value = true;
    main.cboBoundrySize.text = "Army";
    draw();
    EXPECT_EQ(platform.texts(), Texts{"Invalid boundry size. Please select one from the list!"});
    EXPECT_TRUE(main.drawing_lines);
    EXPECT_FALSE(main.cmdStartDrawLines.on());
    EXPECT_TRUE(main.cmdDeleteLine.enabled);
    draw();
    EXPECT_FALSE(main.drawing_lines);
    EXPECT_EQ(platform.messages.size(), 1U);
}

TEST_F(LineTool, SingleLineIsTwoPresses) {
    main.chkArrow.value = true;
    draw();
    main.picMap.marked = false;
    press(100, 200);
    EXPECT_EQ(campaign.colLines.count(), 1U);
    EXPECT_FALSE(main.line_ended);
    EXPECT_TRUE(main.linTempLine.visible);
    EXPECT_EQ(main.linTempLine.x1, 100);
    press(300.4, 200);
    EXPECT_TRUE(main.line_ended && main.picMap.marked);
    EXPECT_FALSE(main.linTempLine.visible);
    EXPECT_EQ(places(line(1)), (std::vector<Place>{{100, 200}, {300, 200}}));
    EXPECT_EQ(barbs(line(1)), (std::vector<int>{290, 194, 290, 205}));
    press(500, 500);
    EXPECT_EQ(campaign.colLines.count(), 2U);
}

TEST_F(LineTool, LineTakesItsAttributesFromThePanel) {
    main.chkBoundry.value = true;
    main.cboBoundrySize.text = "Corps";
    main.picLineColor.back_colour = 77;
    main.scrlLineWidth.value = 5;
    optPolyline_Click(program);
    optLineStyle_Click(program, 4);
    draw();
    press(100, 200);
    EXPECT_TRUE(line(1).is_boundry && line(1).is_polyline);
    EXPECT_FALSE(line(1).is_arrow);
    EXPECT_EQ(line(1).boundry_size, "Corps");
    EXPECT_EQ(line(1).linecolor, 77);
    EXPECT_EQ(line(1).linewidth, 5);
    EXPECT_EQ(line(1).linestyle, 4);
}

TEST_F(LineTool, PolylineEndsWithARightPressAndDrawingGoesOn) {
    optPolyline_Click(program);
    main.chkArrow.value = true;
    draw();
    press(100, 100);
    press(200, 100);
    press(200, 200);
    EXPECT_TRUE(main.linTempLine.visible);
    press(200, 200, right_button);
    EXPECT_EQ(barbs(line(1)), (std::vector<int>{206, 190, 195, 190}));
    EXPECT_TRUE(main.line_ended && main.drawing_lines);
    EXPECT_FALSE(main.linTempLine.visible);
    EXPECT_EQ(campaign.curLine, nullptr);
    press(300, 300, right_button);
    EXPECT_EQ(campaign.colLines.count(), 1U) << "there is none to end";
}

TEST_F(LineTool, DrawOffEndsAnOpenArrowUnlessTheOptionIsSingleByThen) {
    optPolyline_Click(program);
    main.chkArrow.value = true;
    for (const bool single : {false, true}) {
        draw();
        press(0, 0);
        press(100, 0);
        if (single)
            optSingleLine_Click(program);
        else
            draw();
        EXPECT_FALSE(main.drawing_lines);
        EXPECT_EQ(campaign.curLine, nullptr);
    }
    EXPECT_EQ(barbs(line(1)), (std::vector<int>{90, -6, 90, 5}));
    EXPECT_EQ(barbs(line(2)), (std::vector<int>{0, 0, 0, 0}));
}

TEST_F(LineTool, ArrowheadOfOnePointIsTold) {
    campaign.curLine = add_line({{5, 5}});
    find_arrowhead(program);
    EXPECT_EQ(platform.texts(), Texts{"Error 9when calculating position of an arrowhead."});
}

TEST_F(LineTool, ArrowheadOfTwoEqualPointsPointsDown) {
    const auto down = add_line({{50, 50}, {50, 90}});
    const auto same = add_line({{50, 90}, {50, 90}});
    find_arrowhead(*down);
    find_arrowhead(*same);
    EXPECT_EQ(barbs(*down), barbs(*same));
}

TEST_F(LineTool, MovePicksWithinTwoPixelsAndItsEdgesFollow) {
    const auto moved = add_line({{100, 100}, {200, 100}, {300, 100}});
    cmdMovePoint_Click(program);
    press(202, 100);
    EXPECT_EQ(main.selected_point, 0);
    press(201, 101);
    EXPECT_EQ(main.selected_point, 2);
    EXPECT_EQ(campaign.curLine, moved);
    EXPECT_TRUE(main.linTempLine.visible && main.linTempLine2.visible);
    EXPECT_EQ(main.linTempLine.x1, 100);
    EXPECT_EQ(main.linTempLine2.x1, 300);
    press(350.9, 120.2);
    EXPECT_EQ(places(*moved), (std::vector<Place>{{100, 100}, {350, 120}, {300, 100}}));
    EXPECT_EQ(main.selected_point, 0);
    EXPECT_EQ(campaign.curLine, nullptr);
    EXPECT_FALSE(main.linTempLine.visible || main.linTempLine2.visible);
    press(100, 100);
    EXPECT_EQ(main.linTempLine.x1, 350) << "the first vertex hangs on the second";
    EXPECT_FALSE(main.linTempLine2.visible);
    press(100, 100);
    press(300, 100);
    EXPECT_EQ(main.linTempLine.x1, 350) << "the last on the one before";
    EXPECT_FALSE(main.linTempLine2.visible);
}

TEST_F(LineTool, MoveOntoAMarkerRenewsTheArrowheadOnlyForTheLastVertex) {
    const auto arrow = add_line({{100, 100}, {200, 100}, {300, 100}});
    arrow->is_arrow = true;
    const auto unit = add_marked("{1}", 500, 500);
    cmdMovePoint_Click(program);
    press(200, 100);
    press_unit(*unit);
    EXPECT_EQ(barbs(*arrow), (std::vector<int>{0, 0, 0, 0}));
    press(300, 100);
    press_unit(*unit);
    EXPECT_NE(barbs(*arrow), (std::vector<int>{0, 0, 0, 0}));
    EXPECT_EQ(selected(), 0U) << "the press ended with the tool";
}

TEST_F(LineTool, RightPressDropsThePickAndTurnsMovingOff) {
    add_line({{100, 100}, {200, 100}});
    cmdMovePoint_Click(program);
    press(100, 100);
    press(400, 400, right_button);
    EXPECT_EQ(main.selected_point, 0);
    EXPECT_FALSE(main.moving_line_point || main.cmdMovePoint.on() || main.linTempLine.visible);
}

TEST_F(LineTool, PickOnALineOfOnePointIsTold) {
    add_line({{100, 100}});
    cmdMovePoint_Click(program);
    press(100, 100);
    EXPECT_EQ(platform.texts(), Texts{"Error 9 when moving a point."});
    EXPECT_EQ(main.selected_point, 0);
    EXPECT_FALSE(main.linTempLine.visible);
}

TEST_F(LineTool, InsertPutsAVertexBehindThePickedOneAndStaysOn) {
    const auto longer = add_line({{100, 100}, {200, 100}, {300, 100}});
    longer->is_arrow = true;
    cmdInsertPointLine_Click(program);
    press(100, 100);
    EXPECT_EQ(main.linTempLine2.x1, 200);
    press(150.7, 130.9);
    EXPECT_EQ(places(*longer), (std::vector<Place>{{100, 100}, {150, 130}, {200, 100}, {300, 100}}));
    press(300, 100);
    EXPECT_FALSE(main.linTempLine2.visible);
    press(400, 100);
    EXPECT_EQ(places(*longer).back(), Place(400, 100));
    EXPECT_EQ(barbs(*longer), (std::vector<int>{390, 94, 390, 105}));
    EXPECT_TRUE(main.inserting_line_point);
}

TEST_F(LineTool, DeleteTakesTheLineDrawnLast) {
    add_line({{100, 100}, {200, 100}});
    const auto other = add_line({{500, 500}, {600, 500}});
    add_line({{100, 100}, {300, 300}});
    cmdDeleteLine_Click(program);
    press(101, 99);
    EXPECT_EQ(campaign.colLines.count(), 2U);
    EXPECT_EQ(campaign.colLines->at(2), other);
    press(900, 900, right_button);
    EXPECT_FALSE(main.deleting_line);
}

TEST_F(LineTool, DeletePointKeepsTwoPointsAndTheArrowhead) {
    const auto arrow = add_line({{100, 100}, {200, 100}, {300, 100}});
    arrow->arrow1_x = 7;
    cmdDeletePoint_Click(program);
    press(300, 100);
    EXPECT_EQ(places(*arrow), (std::vector<Place>{{100, 100}, {200, 100}}));
    EXPECT_EQ(arrow->arrow1_x, 7);
    press(100, 100);
    EXPECT_EQ(platform.texts(), Texts{"A line cannot have less than 2 points!"});
    EXPECT_EQ(arrow->colCoords.count(), 2U);
    press(100, 100, right_button);
    EXPECT_FALSE(main.deleting_line_point);
}

TEST_F(LineTool, DeletingAllLinesAsks) {
    add_line({{100, 100}, {200, 100}});
    platform.answers = {Answer::no};
    cmdDeleteAllLines_Click(program);
    EXPECT_EQ(campaign.colLines.count(), 1U);
    EXPECT_EQ(platform.messages[0].text, "Delete all the lines?");
    EXPECT_EQ(platform.messages[0].buttons, Buttons::yes_no);
    EXPECT_EQ(platform.messages[0].default_button, Answer::no);
    platform.answers = {Answer::yes};
    main.picMap.marked = false;
    cmdDeleteAllLines_Click(program);
    EXPECT_TRUE(campaign.colLines.empty() && main.picMap.marked);
}
