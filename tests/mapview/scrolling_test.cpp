#include "mapview/scrolling.h"

#include "mapview/keys.h"
#include "mapview/layout.h"
#include "mapview/map_mouse.h"
#include "tests/support/program_test.h"

namespace {

class Scrolling : public ProgramTest {
  protected:
    Scrolling() { size_overview_box(program); }

    std::pair<int, int> values() const { return {program.main.scrlHMap.value, program.main.scrlVMap.value}; }

    void start_at(int h, int v) {
        scroll_horizontally_to(program, h);
        scroll_vertically_to(program, v);
        program.main.picMap.marked = false;
    }

    using At = std::pair<int, int>;
    const HitTarget marker{TargetKind::unit, 0};
};

} // namespace

TEST_F(Scrolling, HorizontalBarMovesMapRulerAndBox) {
    for (const auto& [value, box] : std::vector<std::pair<int, int>>{{36, 2}, {60, 2}, {84, 4}}) {
        scroll_horizontally_to(program, value);
        EXPECT_EQ(program.main.picMap.left, -value);
        EXPECT_EQ(program.main.picHcoord.left, -value);
        EXPECT_EQ(program.main.shpOverviewbox.left, box);
    }
}

TEST_F(Scrolling, BoxIsPulledBackAtTheRight) {
    scroll_horizontally_to(program, 4381);
    EXPECT_EQ(program.main.shpOverviewbox.left, 182);
}

TEST_F(Scrolling, VerticalBarMovesMapRulerAndBoxWhoseTopIsThreeLess) {
    scroll_vertically_to(program, 100);
    EXPECT_EQ(program.main.picMap.top, -100);
    EXPECT_EQ(program.main.picVcoord.top, -100);
    EXPECT_NEAR(program.main.shpOverviewbox.top, 1.1667, 0.0001);
    scroll_vertically_to(program, 71);
    EXPECT_EQ(program.main.shpOverviewbox.top, 0);
    scroll_vertically_to(program, 5112);
    EXPECT_EQ(program.main.shpOverviewbox.top, 210);
}

TEST_F(Scrolling, DraggedThumbMovesTheMapToo) {
    program.main.scrlHMap.value = 48;
    program.main.scrlVMap.value = 24;
    scrlHMap_Scroll(program);
    scrlVMap_Scroll(program);
    EXPECT_EQ(program.main.picMap.left, -48);
    EXPECT_EQ(program.main.picMap.top, -24);
}

TEST_F(Scrolling, ArrowAndKeypadKeysMoveForty) {
    const std::vector<std::pair<int, At>> moves{
        {38, {1000, 960}},  {104, {1000, 960}}, {40, {1000, 1040}},  {98, {1000, 1040}}, {37, {960, 1000}},
        {100, {960, 1000}}, {39, {1040, 1000}}, {102, {1040, 1000}}, {103, {960, 960}},  {105, {1040, 960}},
        {99, {1040, 1040}}, {97, {960, 1040}},  {101, {1000, 1000}}, {96, {1000, 1000}}, {65, {1000, 1000}}};
    for (const auto& [code, expected] : moves) {
        start_at(1000, 1000);
        Form_KeyDown(program, code);
        EXPECT_EQ(values(), expected) << code;
    }
}

TEST_F(Scrolling, KeysEndExactlyAtTheEdges) {
    program.main.scrlHMap.max = 4000;
    for (const auto& [from, to] : std::vector<std::pair<int, int>>{{41, 1}, {40, 0}, {0, 0}}) {
        start_at(from, 0);
        Form_KeyDown(program, key::left);
        EXPECT_EQ(values().first, to);
    }
    for (const auto& [from, to] :
         std::vector<std::pair<int, int>>{{3959, 3999}, {3960, 4000}, {4000, 4000}}) {
        start_at(from, 0);
        Form_KeyDown(program, key::right);
        EXPECT_EQ(values().first, to);
    }
}

TEST_F(Scrolling, KeysReachTheEndOfAShortRange) {
    program.main.scrlVMap.max = 20;
    Form_KeyDown(program, key::down);
    EXPECT_EQ(values().second, 20);
}

TEST_F(Scrolling, CtrlHidesTheMarkersAndLettingItGoShowsAllDeletedOnesToo) {
    program.campaign.gNextUnitIndex = 3;
    program.main.imgUnit.load(1).visible = true;
    program.main.imgUnit.load(2).tag = deleted_tag;
    Form_KeyDown(program, key::ctrl);
    EXPECT_FALSE(program.main.imgUnit(1).visible);
    Form_KeyUp(program, key::ctrl);
    EXPECT_TRUE(program.main.imgUnit(1).visible);
    EXPECT_TRUE(program.main.imgUnit(2).visible);
    EXPECT_FALSE(program.main.imgUnit(0).visible) << "the template";
}

TEST_F(Scrolling, CtrlLetGoShowsMarkersThatTheDisplayOptionHasHidden) {
    program.campaign.gNextUnitIndex = 2;
    program.campaign.gDispUnits = false;
    program.main.imgUnit.load(1);
    Form_KeyDown(program, key::ctrl);
    Form_KeyUp(program, key::ctrl);
    EXPECT_TRUE(program.main.imgUnit(1).visible);
}

TEST_F(Scrolling, OtherKeysLetGoShowNothing) {
    program.campaign.gNextUnitIndex = 2;
    program.main.imgUnit.load(1);
    Form_KeyUp(program, key::left);
    EXPECT_FALSE(program.main.imgUnit(1).visible);
}

TEST_F(Scrolling, EdgeScrollButtonShowsItsStateByColour) {
    cmdEdgescroll_Click(program);
    EXPECT_TRUE(program.main.edge_scrolling);
    EXPECT_EQ(program.main.cmdEdgescroll.colour, static_cast<std::int32_t>(0x80000010));
    cmdEdgescroll_Click(program);
    EXPECT_EQ(program.main.cmdEdgescroll.colour, static_cast<std::int32_t>(0x8000000F));
}

TEST_F(Scrolling, EdgesScrollTenPixelsWithMarginsOfTheirOwn) {
    program.main.edge_scrolling = true;
    struct Case {
        At from;
        double vx;
        double vy;
        At to;
    };
    const int h_max = program.main.scrlHMap.max;
    const int v_max = program.main.scrlVMap.max;
    const std::vector<Case> cases{
        {{11, 500}, 5, 400, {1, 500}},      {{10, 500}, 5, 400, {10, 500}},
        {{500, 500}, 6, 400, {500, 500}},   {{500, 500}, 988, 400, {510, 500}},
        {{500, 500}, 987, 400, {500, 500}}, {{h_max - 10, 500}, 988, 400, {h_max - 10, 500}},
        {{500, 11}, 400, 5, {500, 1}},      {{500, 500}, 400, 864, {500, 510}},
        {{500, 500}, 400, 863, {500, 500}}, {{500, v_max - 10}, 400, 864, {500, v_max - 10}},
        {{500, 500}, 0, 0, {490, 490}}};
    for (const Case& one : cases) {
        start_at(one.from.first, one.from.second);
        edge_scroll(program, one.vx + one.from.first, one.vy + one.from.second);
        EXPECT_EQ(values(), one.to);
        EXPECT_EQ(program.main.picMap.marked, one.from != one.to);
    }
}

TEST_F(Scrolling, EdgesDoNothingWhileTheToolIsOff) {
    start_at(500, 500);
    edge_scroll(program, 500, 500);
    EXPECT_EQ(values(), At(500, 500));
}

TEST_F(Scrolling, MovingTheMouseOverMapOrMarkerScrollsAtTheEdge) {
    program.main.edge_scrolling = true;
    start_at(500, 500);
    mouse_move(program, {}, {0, 0, 500, 900});
    EXPECT_EQ(values(), At(490, 500));
    mouse_move(program, marker, {0, 0, 490, 900});
    EXPECT_EQ(values(), At(480, 500));
}

TEST_F(Scrolling, RightButtonPansByTheWayOfThePointer) {
    start_at(1000, 1000);
    mouse_down(program, {}, {2, 0, 1000, 1000});
    picMap_MouseUp(program, {2, 0, 900, 950});
    EXPECT_EQ(values(), At(1100, 1050));
    mouse_down(program, {}, {2, 0, 100, 100});
    picMap_MouseUp(program, {2, 0, 9000, 9000});
    EXPECT_EQ(values(), At(0, 0));
    mouse_down(program, {}, {2, 0, 9000, 9000});
    picMap_MouseUp(program, {2, 0, 0, 0});
    EXPECT_EQ(values(), At(4382, 5115));
}

TEST_F(Scrolling, RightClickWithoutMovementAndLeftButtonChangeNothing) {
    start_at(700, 800);
    mouse_down(program, {}, {2, 0, 1000, 1000});
    picMap_MouseUp(program, {2, 0, 1000, 1000});
    mouse_down(program, {}, {1, 0, 100, 100});
    picMap_MouseUp(program, {1, 0, 500, 500});
    EXPECT_EQ(values(), At(700, 800));
}

TEST_F(Scrolling, EdgeMarginAtTheTopIsFivePixels) {
    program.main.edge_scrolling = true;
    start_at(500, 500);
    edge_scroll(program, 900, 506);
    EXPECT_EQ(values(), At(500, 500));
}

TEST_F(Scrolling, BoxTopFollowsTheHeights) {
    program.main.picMap.height = 12000;
    scroll_vertically_to(program, 4800);
    EXPECT_EQ(program.main.shpOverviewbox.top, 4800 * 250 / 12000.0 - 3);
}

TEST_F(Scrolling, PointerBeyondSixteenBitsIsToldAsError6) {
    mouse_move(program, {}, {0, 0, 100, 32720});
    mouse_down(program, {}, {2, 0, 40000, 0});
    EXPECT_EQ(platform.texts(),
              (std::vector<std::string>{"Error 6 when moving the mouse.",
                                        "Error 6 when pressing a mouse button on the map."}));
}

TEST_F(Scrolling, PanBeyondSixteenBitsIsToldAsError6) {
    program.main.popup_x = -32768;
    picMap_MouseUp(program, {2, 0, 100, 0});
    EXPECT_EQ(platform.texts(), std::vector<std::string>{"Error 6 when releasing a mouse button."});
    program.main.popup_x = 0;
    program.main.popup_y = -32768;
    picMap_MouseUp(program, {2, 0, 0, 100});
    EXPECT_EQ(platform.messages.size(), 2U);
}

TEST_F(Scrolling, MoveShowsTheReferenceAndLeavesCurrentY48TooLarge) {
    mouse_move(program, {}, {0, 0, 225, 102});
    EXPECT_EQ(program.main.sbarMap.panels[0], "Eastern: 01.50 - Northern: 40.00");
    mouse_move(program, {}, {0, 0, 10, 20});
    EXPECT_EQ(program.main.current_x, 10);
    EXPECT_EQ(program.main.current_y, 68);
}

TEST_F(Scrolling, MoveOverAMarkerLeavesTheMapsPointerAlone) {
    mouse_move(program, {}, {0, 0, 10, 20});
    mouse_move(program, marker, {0, 0, 225, 102});
    EXPECT_EQ(program.main.sbarMap.panels[0], "Eastern: 01.50 - Northern: 40.00");
    EXPECT_EQ(program.main.current_x, 10);
    EXPECT_EQ(program.main.current_y, 68);
}
