#include "annotation/vertices.h"
#include "tests/support/line_tool.h"

#include <algorithm>
#include <functional>

TEST_F(LineTool, SingleLineIsTwoPresses) {
    main.chkArrow.value = true;
    draw();
    main.picMap.marked = false;
    press(100, 200);
    EXPECT_EQ(campaign.colLines.count(), 1U);
    EXPECT_FALSE(main.line_ended);
    expect_scratch_line_at(100, 200);
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
    draw();
    main.chkBoundry.value = false;
    main.cboBoundrySize.text = "whatever stands there";
    draw();
    press(100, 300);
    EXPECT_FALSE(line(2).is_boundry);
    EXPECT_EQ(line(2).boundry_size, "whatever stands there");
    EXPECT_EQ(line(1).linecolor, 77);
    EXPECT_EQ(line(1).linewidth, 5);
    EXPECT_EQ(line(1).linestyle, 4);
}

TEST_F(LineTool, PolylineEndsWithARightPressAndDrawingGoesOn) {
    optPolyline_Click(program);
    main.chkArrow.value = true;
    draw();
    press(100, 100);
    move(150, 150);
    press(200, 100);
    expect_scratch_line_at(200, 100);
    move(200, 150);
    press(200, 200);
    expect_scratch_line_at(200, 200);
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
    EXPECT_EQ(main.linTempLine.x2, 200) << "begins at the picked one";
    EXPECT_EQ(main.linTempLine2.x1, 300);
    EXPECT_EQ(main.linTempLine2.y2, 100);
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
    add_line({{100, 100}, {200, 100}, {300, 100}});
    cmdMovePoint_Click(program);
    press(200, 100);
    ASSERT_TRUE(main.linTempLine.visible && main.linTempLine2.visible);
    press(400, 400, right_button);
    EXPECT_EQ(main.selected_point, 0);
    EXPECT_EQ(campaign.curLine, nullptr);
    EXPECT_FALSE(main.moving_line_point || main.cmdMovePoint.on() || main.linTempLine.visible ||
                 main.linTempLine2.visible);
}

TEST_F(LineTool, PickOnALineOfOnePointIsTold) {
    add_line({{100, 100}});
    cmdMovePoint_Click(program);
    press(100, 100);
    EXPECT_EQ(platform.texts(), Texts{"Error 9 when moving a point."});
    EXPECT_EQ(main.selected_point, 0);
    EXPECT_FALSE(main.linTempLine.visible);
    EXPECT_TRUE(main.moving_line_point) << "a failure ends no tool";
}

TEST_F(LineTool, InsertPutsAVertexBehindThePickedOneAndStaysOn) {
    const auto longer = add_line({{100, 100}, {200, 100}, {300, 100}});
    longer->is_arrow = true;
    cmdInsertPointLine_Click(program);
    press(100, 100);
    EXPECT_EQ(main.linTempLine.x1, 100) << "one end stays at the picked vertex";
    EXPECT_EQ(main.linTempLine2.x1, 200) << "the other at the next";
    EXPECT_EQ(main.linTempLine2.x2, 100);
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
    expect_buttons_free();
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
    expect_buttons_free();
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

TEST_F(LineTool, MoveOnTheMapRenewsTheArrowheadWhicheverVertexMoves) {
    const auto arrow = add_line({{100, 100}, {200, 100}, {300, 100}});
    arrow->is_arrow = true;
    cmdMovePoint_Click(program);
    press(200, 100);
    press(200, 200);
    EXPECT_NE(barbs(*arrow), (std::vector<int>{0, 0, 0, 0}));
}

TEST_F(LineTool, MoveOntoALabelRenewsTheArrowheadOnlyForTheLastVertex) {
    const auto arrow = add_line({{100, 100}, {200, 100}, {300, 100}});
    arrow->is_arrow = true;
    main.lblUser.load(1).visible = true;
    cmdMovePoint_Click(program);
    const auto drop_on_label = [&](double x) {
        press(x, 100);
        mouse_down(program, {TargetKind::label, 1}, {left_button, 0, x + 20, 150});
    };
    drop_on_label(200);
    EXPECT_EQ(barbs(*arrow), (std::vector<int>{0, 0, 0, 0}));
    drop_on_label(300);
    EXPECT_NE(barbs(*arrow), (std::vector<int>{0, 0, 0, 0}));
}

TEST_F(LineTool, InsertOntoAMarkerRenewsTheArrowhead) {
    const auto arrow = add_line({{100, 100}, {200, 100}, {300, 100}});
    arrow->is_arrow = true;
    const auto unit = add_marked("{1}", 500, 500);
    cmdInsertPointLine_Click(program);
    press(100, 100);
    press_unit(*unit);
    EXPECT_NE(barbs(*arrow), (std::vector<int>{0, 0, 0, 0}));
}

TEST_F(LineTool, ReachIsTheSameInBothDirections) {
    add_line({{100, 100}, {200, 100}});
    cmdMovePoint_Click(program);
    press(100, 102);
    EXPECT_EQ(main.selected_point, 0);
    press(100, 98);
    EXPECT_EQ(main.selected_point, 0);
    press(98, 100);
    EXPECT_EQ(main.selected_point, 0);
    press(101, 99);
    EXPECT_EQ(main.selected_point, 1);
}

TEST_F(LineTool, RightPressLeavesAnOpenSingleLineAsItIs) {
    draw();
    press(100, 100);
    press(200, 200, right_button);
    EXPECT_FALSE(main.line_ended);
    EXPECT_TRUE(main.linTempLine.visible);
    EXPECT_NE(campaign.curLine, nullptr);
}

TEST_F(LineTool, OfVerticesOnOneSpotTheFirstIsPicked) {
    const auto first = add_line({{100, 100}, {100, 101}, {300, 100}});
    const auto second = add_line({{100, 100}, {500, 500}, {600, 500}});
    for (const auto mode : {cmdMovePoint_Click, cmdInsertPointLine_Click}) {
        mode(program);
        press(100, 100);
        EXPECT_EQ(campaign.curLine, first);
        EXPECT_EQ(main.selected_point, 1);
        press(100, 100);
        mode(program);
    }
    const std::size_t before = first->colCoords.count();
    cmdDeletePoint_Click(program);
    press(100, 100);
    EXPECT_EQ(first->colCoords.count(), before - 1);
    EXPECT_EQ(second->colCoords.count(), 3U);
}

TEST_F(LineTool, VerticesAreDrawnHalfToEven) {
    optPolyline_Click(program);
    draw();
    press(100.5, 200.6);
    press(101.5, 200.4);
    EXPECT_EQ(places(line(1)), (std::vector<Place>{{100, 201}, {102, 200}}));
}

TEST_F(LineTool, MapIsPaintedAnewFromTheSecondVertexOn) {
    optPolyline_Click(program);
    draw();
    const auto paints = [&](const std::function<void()>& step) {
        main.picMap.marked = false;
        step();
        return main.picMap.marked;
    };
    EXPECT_FALSE(paints([&] { add_line_point(program, 100, 100); })) << "one point shows nothing";
    EXPECT_TRUE(paints([&] { add_line_point(program, 200, 100); }));
    EXPECT_TRUE(paints([&] { add_line_point(program, 300, 100); }));
    EXPECT_TRUE(paints([&] { delete_line_point_at(program, 300, 100); }));
    EXPECT_FALSE(paints([&] { delete_line_at(program, 900, 900); })) << "nothing is there";
    EXPECT_TRUE(paints([&] { delete_line_at(program, 200, 100); }));
}

TEST_F(LineTool, DropsAndEndsOnAMarkerPaintTheMapAnew) {
    const auto unit = add_marked("{1}", 500, 500);
    add_line({{100, 100}, {200, 100}, {300, 100}});
    for (const auto mode : {cmdMovePoint_Click, cmdInsertPointLine_Click}) {
        mode(program);
        press(100, 100);
        main.picMap.marked = false;
        press_unit(*unit);
        EXPECT_TRUE(main.picMap.marked);
        mode(program);
        delete_line_point_at(program, 500, 500);
        campaign.colLines->at(1)->colCoords->insert_after(0, drawn_vertex(100, 100));
    }
    optPolyline_Click(program);
    draw();
    press(700, 700);
    press(800, 700);
    main.picMap.marked = false;
    press_unit(*unit, right_button);
    EXPECT_TRUE(main.picMap.marked && main.line_ended);
}

TEST_F(LineTool, RightPressOnAMarkerIsTheToolsToo) {
    const auto unit = add_marked("{1}", 500, 500);
    const std::vector<std::pair<void (*)(Program&), bool ToolFlags::*>> modes{
        {cmdMovePoint_Click, &ToolFlags::moving_line_point},
        {cmdDeleteLine_Click, &ToolFlags::deleting_line},
        {cmdDeletePoint_Click, &ToolFlags::deleting_line_point}};
    for (const auto& [mode, flag] : modes) {
        mode(program);
        press_unit(*unit, right_button);
        EXPECT_FALSE(main.*flag);
        EXPECT_EQ(selected(), 0U);
    }
    draw();
    press_unit(*unit, right_button);
    EXPECT_TRUE(main.drawing_lines);
    EXPECT_EQ(selected(), 0U);
    EXPECT_TRUE(std::none_of(platform.log.begin(), platform.log.end(),
                             [](const std::string& entry) { return entry.starts_with("popup"); }));
}

TEST_F(LineTool, PickOutlivesItsMode) {
    const auto picked = add_line({{100, 100}, {200, 100}});
    cmdMovePoint_Click(program);
    press(200, 100);
    cmdMovePoint_Click(program);
    EXPECT_EQ(main.selected_point, 2);
    EXPECT_EQ(campaign.curLine, picked);
    cmdExitDrawLine_Click(program);
    EXPECT_EQ(main.selected_point, 2);
    EXPECT_EQ(campaign.curLine, picked);
    cmdDrawLines_Click(program);
    cmdMovePoint_Click(program);
    press(400, 400);
    EXPECT_EQ(places(*picked), (std::vector<Place>{{100, 100}, {400, 400}})) << "the next press drops it";
    EXPECT_EQ(main.selected_point, 0);
}

TEST_F(LineTool, ClosingOverAnOpenArrowMakesNoArrowhead) {
    optPolyline_Click(program);
    main.chkArrow.value = true;
    draw();
    press(100, 100);
    press(200, 100);
    cmdExitDrawLine_Click(program);
    EXPECT_EQ(barbs(line(1)), (std::vector<int>{0, 0, 0, 0}));
    EXPECT_NE(campaign.curLine, nullptr) << "until the next line";
}

TEST_F(LineTool, ArrowOfOnePointEndsAfterItsMessage) {
    optPolyline_Click(program);
    main.chkArrow.value = true;
    for (const bool by_press : {true, false}) {
        platform.messages.clear();
        if (!main.drawing_lines) draw();
        press(100, 100);
        if (by_press)
            press(150, 150, right_button);
        else
            draw();
        EXPECT_EQ(platform.texts(), Texts{"Error 9when calculating position of an arrowhead."});
        EXPECT_TRUE(main.line_ended);
        EXPECT_FALSE(main.linTempLine.visible);
        EXPECT_EQ(campaign.curLine, nullptr);
    }
}
