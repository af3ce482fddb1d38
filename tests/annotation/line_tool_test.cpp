#include "mapview/tool_modes.h"
#include "mapview/unit_tray.h"
#include "tests/support/line_tool.h"

TEST_F(LineTool, OpeningPutsThePanelOverTheUnitInfoAndKeepsOtherToolsAway) {
    main.picUnitInfo.visible = main.placing_shape = main.picPlaceShapes.visible = true;
    main.cmdPlaceShape.show_on(true);
    main.line_ended = false;
    cmdDrawLines_Click(program); // closes
    EXPECT_FALSE(main.picDrawLines.visible);
    EXPECT_TRUE(main.line_ended) << "by closing";
    main.line_ended = false;
    cmdDrawLines_Click(program);
    EXPECT_TRUE(main.picDrawLines.visible && main.cmdDrawLines.on());
    EXPECT_TRUE(main.line_ended) << "by opening";
    EXPECT_EQ(main.picDrawLines.left, 4);
    EXPECT_EQ(main.picDrawLines.top, 296);
    EXPECT_EQ(main.picDrawLines.width, 224);
    EXPECT_EQ(main.picDrawLines.height, 300);
    EXPECT_FALSE(main.picUnitInfo.visible || main.placing_shape || main.picPlaceShapes.visible ||
                 main.cmdPlaceShape.on());
    EXPECT_FALSE(main.cmdDrawLines.enabled || main.cmdTownsData.enabled || main.cmdFindCoord.enabled);
}

TEST_F(LineTool, FifteenButtonsGoAndComeTogether) {
    enable_all(program);
    main.cmdHierarchy.enabled = main.cmdSelectHQ.enabled = main.cmdUnitWaypoints.enabled = true;
    disable_all(program);
    disable_all(program);
    Toolbar& tools = main;
    EXPECT_TRUE(enabled_buttons().empty());
    for (const Button* button : {&tools.cmdLoad, &tools.cmdSave, &tools.cmdGrid, &tools.cmdLegend,
                                 &tools.cmdEdgescroll, &tools.cmdSetDateTime})
        EXPECT_TRUE(button->enabled);
    EXPECT_TRUE(main.cmdHierarchy.enabled && main.cmdSelectHQ.enabled && main.cmdUnitWaypoints.enabled);
    enable_all(program);
    EXPECT_EQ(enabled_buttons(), fenced_buttons());
}

TEST_F(LineTool, LeavingEndsEveryModeAndDoesNotBringThePanelBack) {
    cmdMovePoint_Click(program);
    main.linTempLine.visible = main.linTempLine2.visible = true;
    main.drawing_lines = main.deleting_line = main.deleting_line_point = main.inserting_line_point = true;
    cmdExitDrawLine_Click(program);
    EXPECT_FALSE(main.drawing_lines || main.deleting_line || main.deleting_line_point ||
                 main.moving_line_point || main.inserting_line_point || main.linTempLine.visible ||
                 main.linTempLine2.visible || main.picDrawLines.visible || main.picUnitInfo.visible);
    EXPECT_TRUE(main.line_ended && main.cmdDrawLines.enabled);
    EXPECT_FALSE(main.cmdDrawLines.on());
    expect_buttons_free();
}

TEST_F(LineTool, TrayEndsEveryModeToo) {
    cmdMovePoint_Click(program);
    main.line_ended = false;
    for (Button* button : line_buttons()) button->show_on(true);
    cmdUnitTray_Click(program);
    EXPECT_TRUE(main.line_ended);
    expect_buttons_free();
}

TEST_F(LineTool, DrawOnAndOffHaveNoLineOpen) {
    main.line_ended = false;
    draw();
    EXPECT_TRUE(main.line_ended) << "by on";
    optPolyline_Click(program);
    draw();
    press(100, 100);
    EXPECT_FALSE(main.line_ended);
    draw();
    EXPECT_TRUE(main.line_ended) << "by off";
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
    EXPECT_TRUE(main.chkArrow.enabled && main.chkBoundry.enabled);
    EXPECT_TRUE(main.optSingleLine.value && main.optLineStyle[1].value);
    EXPECT_EQ(main.scrlLineWidth.value, 1);
    EXPECT_EQ(main.picLineColor.back_colour, 0);
    for (const auto& sample : main.lineEx) {
        EXPECT_EQ(sample.style, 1);
        EXPECT_EQ(sample.width, 1);
        EXPECT_EQ(sample.colour, 0);
    }
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

TEST_F(LineTool, RefusedBoundaryIsDrawnAllTheSame) {
    main.chkBoundry.value = true;
    for (const char* size : {"corps", "", "Army"}) {
        platform.messages.clear();
        main.cboBoundrySize.text = size;
        main.drawing_lines = false;
        draw();
        EXPECT_EQ(platform.texts().size(), 1U) << size;
    }
    press(100, 100);
    press(200, 100);
    EXPECT_EQ(platform.texts().size(), 1U);
    ASSERT_EQ(campaign.colLines.count(), 1U);
    EXPECT_EQ(line(1).boundry_size, "Army");
    EXPECT_EQ(line(1).colCoords.count(), 2U);
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
