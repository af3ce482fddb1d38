#include "operations/fire_fans.h"

#include "core/catalogue.h"
#include "mapview/painting.h"
#include "tests/support/figures.h"
#include "tests/support/program_test.h"

#include <numbers>

namespace {

using Told = std::vector<std::string>;

class FireFans : public ProgramTest {
  protected:
    FireFans() {
        add_entry(12, 4, true, 4000);
        add_entry(13, 4, false, 2000);
        add_entry(14, 5, true, 1000);
        unit = add_unit("{1}");
        unit->xcoord = 1000;
        unit->ycoord = 2000;
        unit->affiliation = "Allied";
        unit->img_index = 1;
        program.main.imgUnit.load(1).tag = "{1}";
        OverviewDot& dot = program.main.shpUnit.load(1);
        dot.left = 40;
        dot.top = 80;
        program.main.mnuOVPU_showlines.checked = false;
    }

    void add_entry(int number, int force_type, bool firefan, int range) {
        auto entry = std::make_shared<oForceElements>();
        entry->ID = static_cast<std::int16_t>(number);
        entry->force_type = static_cast<std::int16_t>(force_type);
        entry->firefan = firefan;
        entry->max_range = static_cast<std::int16_t>(range);
        program.campaign.colForceElements->add(entry, " " + std::to_string(number));
    }

    std::shared_ptr<oUnitForceElements> add_element(int index, int angle = 0) {
        auto element = std::make_shared<oUnitForceElements>();
        element->ID = "{F" + std::to_string(unit->force_elements.count()) + "}";
        element->Index = static_cast<std::int16_t>(index);
        element->FireFanAngle = static_cast<std::int16_t>(angle);
        unit->force_elements->add(element, element->ID);
        return element;
    }

    /// Start and end of the fan in whole degrees.
    std::pair<int, int> arc(int angle) {
        unit->force_elements.drop();
        add_element(12, angle);
        const auto figure = figure_of_map();
        const double degrees = 180 / std::numbers::pi;
        return {to_long(figure.start * degrees), to_long(figure.end * degrees)};
    }

    Told on_overview() {
        draw_overview(program, painting);
        return told(painting.overview);
    }

    Told fans_on_map() const {
        Told all = told(program.painting.map);
        std::erase_if(all, [](const std::string& figure) { return figure.starts_with("text"); });
        return all;
    }

    /// Makes it the one that gets elements. Its fan on the overview fails.
    void add_unit_without_dot() {
        unit = add_unit("{2}");
        unit->img_index = 2;
        program.main.imgUnit.load(2).tag = "{2}";
    }

    DrawingList::Figure figure_of_map() {
        painting.map.clear();
        draw_firefans(program, painting);
        return painting.map.figures().at(0);
    }

    std::shared_ptr<oUnits> unit;
    Painting painting;
};

} // namespace

TEST_F(FireFans, OnlyArtilleryOfTheCatalogueWithAFanCanBeTurned) {
    EXPECT_TRUE(has_firefan(program, *add_element(12)));
    EXPECT_FALSE(has_firefan(program, *add_element(13))) << "full circle";
    EXPECT_FALSE(has_firefan(program, *add_element(14))) << "no artillery";
    EXPECT_FALSE(has_firefan(program, *add_element(999))) << "free text";
}

TEST_F(FireFans, AnglePointsFromTheUnitToThePointer) {
    const std::vector<std::tuple<double, double, int>> rows{
        {1000, 1900, 0},  {1000, 2100, 180}, {1000, 2000, 180}, {1100, 2000, 90}, {900, 2000, 270},
        {1100, 1900, 44}, {1100, 2100, 135}, {900, 2100, 224},  {900, 1900, 315}};
    for (const auto& [x, y, angle] : rows) EXPECT_EQ(firefan_angle(*unit, x, y), angle) << x << "," << y;
    EXPECT_EQ(firefan_angle(*unit, 1000, 2000), 180);
    EXPECT_EQ(firefan_angle(*unit, 1050.5, 2000), 90);
}

TEST_F(FireFans, TurningGoesToTheElementInHandAndRepaints) {
    program.campaign.curUnit = unit;
    program.campaign.curUFE = add_element(12);
    set_firefan_angle(program, 1100, 2000);
    EXPECT_EQ(program.campaign.curUFE->FireFanAngle, 90);
    EXPECT_TRUE(program.main.picMap.marked);
}

TEST_F(FireFans, TurningWithNothingInHandIsTold) {
    program.campaign.curUnit = unit;
    set_firefan_angle(program, 1100, 2000);
    EXPECT_EQ(platform.texts(), Told{"Error 91 when moving firefans."});
}

TEST_F(FireFans, SixtyDegreesAroundTheBearing) {
    EXPECT_EQ(arc(0), std::pair(60, 120));
    EXPECT_EQ(arc(90), std::pair(330, 30));
    EXPECT_EQ(arc(60), std::pair(0, 60));
    EXPECT_EQ(arc(120), std::pair(300, 0));
    EXPECT_EQ(arc(180), std::pair(240, 300));
    EXPECT_EQ(arc(270), std::pair(150, 210));
}

TEST_F(FireFans, RangeIsTheRadiusAndWithoutFanAFullCircle) {
    add_element(12);
    add_element(13);
    add_element(14);
    add_element(999);
    draw_firefans(program, painting);
    EXPECT_EQ(told(painting.map), (Told{"pie 1000,2000 r600", "circle 1000,2000 r300"}));
}

TEST_F(FireFans, OfAllUnitsAreBlueHatchedBySide) {
    add_element(13);
    painting.map.pen.DrawStyle = 3;
    draw_firefans(program, painting);
    EXPECT_EQ(told(painting.map.figures()[0].pen),
              "fore 16711680 fill 16711680 style 2 dash 0 width 1 mode 13");
    unit->affiliation = "Axis";
    painting.map.clear();
    draw_firefans(program, painting);
    EXPECT_EQ(painting.map.figures()[0].pen.FillStyle, 3);
}

TEST_F(FireFans, ActiveUnitIsRedAndItsElementInHandGreenAlsoOnTheOverview) {
    add_element(13);
    program.campaign.curUFE = add_element(13);
    program.campaign.curUnit = unit;
    program.main.picUnitInfo.visible = true;
    draw_firefans(program, painting);
    ASSERT_EQ(painting.map.figures().size(), 2U);
    EXPECT_EQ(painting.map.figures()[0].pen.FillColor, 255);
    EXPECT_EQ(painting.map.figures()[1].pen.FillColor, 0xFF00);
    ASSERT_EQ(told(painting.overview), Told{"circle 41,82 r12.5"});
    EXPECT_EQ(told(painting.overview.figures()[0].pen), "fore 0 fill 65280 style 0 dash 0 width 1 mode 9");
    painting.overview.clear();
    program.campaign.gDispOmFirefans = false;
    draw_firefans(program, painting);
    EXPECT_EQ(told(painting.overview), Told{"circle 41,82 r12.5"}) << "whatever the overview's own option";
}

TEST_F(FireFans, OnTheMapHaveWidthAndModeOfTheLayersBefore) {
    add_element(13);
    painting.map.pen.DrawWidth = 4;
    for (const int mode : {9, 13}) {
        painting.map.pen.DrawMode = mode;
        EXPECT_EQ(figure_of_map().pen.DrawWidth, 4);
        EXPECT_EQ(figure_of_map().pen.DrawMode, mode);
    }
}

TEST_F(FireFans, LieUnderTheLinesOfTheOverviewWhichTakeTheirMode) {
    add_element(13);
    auto line = std::make_shared<oLines>();
    for (const int x : {0, 240}) line->colCoords->add(std::make_shared<oCoordinates>(oCoordinates{x, 0}));
    program.campaign.colLines->add(line);
    program.main.mnuOVPU_showlines.checked = true;
    EXPECT_EQ(on_overview(), (Told{"circle 41,82 r12.5", "line 0,0 10,0"}));
    EXPECT_EQ(painting.overview.figures()[1].pen.DrawMode, 9);
}

TEST_F(FireFans, OfTheSelectedUnitOnlyWithItsPanelOpen) {
    add_element(13);
    program.campaign.gDispFirefansAll = false;
    program.campaign.gDispFirefansSelected = true;
    program.campaign.curUnit = unit;
    draw_firefans(program, painting);
    EXPECT_TRUE(painting.map.figures().empty());
    program.main.picUnitInfo.visible = true;
    draw_firefans(program, painting);
    ASSERT_EQ(painting.map.figures().size(), 1U);
    EXPECT_EQ(painting.map.figures()[0].pen.ForeColor, 255);
}

TEST_F(FireFans, OverviewShowsThemInTheColourOfTheSide) {
    add_element(13);
    painting.overview.line({0, 0}, {1, 1});
    draw_overview(program, painting);
    EXPECT_EQ(told(painting.overview), Told{"circle 41,82 r12.5"}) << "what was there is cleared";
    EXPECT_EQ(painting.overview.figures()[0].pen.FillColor, 255);
    unit->affiliation = "Axis";
    draw_overview(program, painting);
    EXPECT_EQ(painting.overview.figures()[0].pen.FillColor, 0xFF0000);
    program.campaign.curUFE = unit->force_elements->at(1);
    draw_overview(program, painting);
    EXPECT_EQ(painting.overview.figures()[0].pen.FillColor, 0xFF00) << "the element in hand";
    program.campaign.gDispOmFirefans = false;
    draw_overview(program, painting);
    EXPECT_TRUE(painting.overview.figures().empty());
}

TEST_F(FireFans, UnitWithoutAMarkerHasNoneOnTheOverview) {
    add_element(13);
    for (const int none : {0, 2}) {
        unit->img_index = static_cast<std::int16_t>(none);
        draw_overview(program, painting);
        EXPECT_TRUE(painting.overview.figures().empty()) << none;
        EXPECT_EQ(painting.firefan_failure, 0) << none;
    }
    unit->img_index = 1;
    program.main.imgUnit(1).tag = "{another}";
    draw_overview(program, painting);
    EXPECT_TRUE(painting.overview.figures().empty()) << "the index is another one's by now";
}

TEST_F(FireFans, ElementThatTheCatalogueLacksIsToldOnceAndTheOtherLayersStand) {
    add_element(77);
    program.campaign.gDispFirefans = true;
    program.campaign.gShowGrid = true;
    picMap_Paint(program);
    EXPECT_EQ(platform.texts(), Told{"Error 5 when drawing firefans."});
    EXPECT_FALSE(program.painting.map.figures().empty());
}

TEST_F(FireFans, BrokenFanOfOneUnitLeavesThoseOfTheUnitsBehindIt) {
    add_element(77);
    unit = add_unit("{2}");
    unit->img_index = 1;
    program.main.imgUnit(1).tag = "{2}";
    add_element(13);
    program.campaign.gDispFirefans = true;
    picMap_Paint(program);
    EXPECT_EQ(platform.texts(), Told{"Error 5 when drawing firefans."});
    EXPECT_EQ(told(program.painting.map).back(), "circle 0,0 r300");
    EXPECT_EQ(told(program.painting.overview), Told{"circle 41,82 r12.5"});
}

TEST_F(FireFans, PiecesInFrontOfOneThatTheCatalogueLacksAreDrawn) {
    add_element(13);
    add_element(77);
    add_element(12);
    unit->xcoord = 500;
    unit->ycoord = 600;
    program.campaign.gDispFirefans = true;
    program.campaign.curUnit = unit;
    program.main.picUnitInfo.visible = true;
    for (const bool of_selected : {false, false, true}) {
        program.campaign.gDispFirefansSelected = of_selected;
        platform.messages.clear();
        picMap_Paint(program);
        EXPECT_EQ(platform.texts(), Told{"Error 5 when drawing firefans."});
        EXPECT_EQ(fans_on_map(), Told{"circle 500,600 r300"});
        EXPECT_EQ(told(program.painting.overview), Told{"circle 41,82 r12.5"});
    }
}

TEST_F(FireFans, FailureEndsTheFansOfItsUnitAndOfNoOther) {
    add_element(13);
    add_unit_without_dot();
    program.campaign.curUFE = add_element(13);
    add_element(12);
    program.campaign.curUnit = unit;
    program.main.picUnitInfo.visible = true;
    program.campaign.gDispFirefans = true;
    unit = add_unit("{3}");
    unit->xcoord = 300;
    add_element(13);
    picMap_Paint(program);
    EXPECT_EQ(platform.texts(), Told{"Error 340 when drawing firefans."});
    EXPECT_EQ(told(program.painting.overview), Told{"circle 41,82 r12.5"}) << "of the first";
    EXPECT_EQ(fans_on_map(), (Told{"circle 0,0 r300", "circle 300,0 r300"})) << "the first is out of view";
}

TEST_F(FireFans, NumberOfTheLastUnitThatFailsIsTold) {
    add_element(77);
    add_unit_without_dot();
    add_element(13);
    picMap_Paint(program);
    EXPECT_EQ(platform.texts(), Told{"Error 340 when drawing firefans."});
}

TEST_F(FireFans, FollowWhatAUnitHolds) {
    const Told none;
    const Told circle{"circle 41,82 r12.5"};
    EXPECT_EQ(on_overview(), none);
    const auto element = add_element(14);
    EXPECT_EQ(on_overview(), none);
    element->Index = 13;
    EXPECT_EQ(on_overview(), circle) << "of another kind now";
    unit->force_elements->remove(element->ID);
    EXPECT_EQ(on_overview(), none) << "removed";
    add_element(13);
    EXPECT_EQ(on_overview(), circle) << "added";
    const auto copy = unit->force_elements;
    unit->force_elements.drop();
    EXPECT_EQ(on_overview(), none) << "dropped";
    unit->force_elements = copy;
    EXPECT_EQ(on_overview(), circle) << "shared";
}

TEST_F(FireFans, FollowTheListOfUnits) {
    add_element(13);
    EXPECT_EQ(on_overview().size(), 1U);
    const auto late = std::make_shared<oUnits>(*unit);
    EXPECT_EQ(on_overview().size(), 1U) << "in no list yet";
    program.campaign.colUnits->add(late, "late");
    EXPECT_EQ(on_overview().size(), 2U);
    program.campaign.colUnits->remove("{1}");
    EXPECT_EQ(on_overview().size(), 1U);
    program.campaign.colUnits.drop();
    EXPECT_EQ(on_overview().size(), 0U);
}

TEST_F(FireFans, FollowTheCatalogue) {
    add_element(15);
    EXPECT_EQ(on_overview().size(), 0U);
    EXPECT_EQ(painting.firefan_failure, 5);
    painting.firefan_failure = 0;
    add_entry(15, 4, false, 2000);
    EXPECT_EQ(on_overview().size(), 1U);
    EXPECT_EQ(painting.firefan_failure, 0);
    program.campaign.colForceElements.drop();
    add_entry(15, 5, false, 2000);
    EXPECT_EQ(on_overview().size(), 0U);
}

TEST_F(FireFans, FollowTheUnitItsDotAndItsAngle) {
    const auto element = add_element(12, 90);
    constexpr double degree = std::numbers::pi / 180;
    EXPECT_NEAR(figure_of_map().start, 330 * degree, 0.001);
    element->FireFanAngle = 270;
    EXPECT_NEAR(figure_of_map().start, 150 * degree, 0.001);
    unit->xcoord = 700;
    EXPECT_EQ(figure_of_map().points.at(0).x, 700);
    program.main.shpUnit(1).left = 60;
    EXPECT_EQ(on_overview(), Told{"pie 61,82 r25"});
}

TEST_F(FireFans, LinesOnTheOverviewFollowTheirMenuEntry) {
    auto line = std::make_shared<oLines>();
    for (const int x : {0, 240}) line->colCoords->add(std::make_shared<oCoordinates>(oCoordinates{x, 0}));
    program.campaign.colLines->add(line);
    draw_overview(program, painting);
    EXPECT_TRUE(painting.overview.empty());
    program.main.mnuOVPU_showlines.checked = true;
    draw_overview(program, painting);
    EXPECT_EQ(told(painting.overview), Told{"line 0,0 10,0"});
}

TEST_F(FireFans, GateIsTheirOption) {
    EXPECT_FALSE(firefans_are_shown(program));
    program.campaign.gDispFirefans = true;
    EXPECT_TRUE(firefans_are_shown(program));
}

TEST_F(FireFans, SelectedUnitComesBeforeAllUnitsWhileItsPanelIsOpen) {
    add_element(13);
    const auto first = unit;
    unit = add_unit("{2}");
    unit->img_index = 1;
    add_element(13);
    program.campaign.gDispFirefansSelected = true;
    program.campaign.curUnit = first;
    draw_firefans(program, painting);
    EXPECT_EQ(painting.map.figures().size(), 2U) << "without the panel all units are shown";
    painting.map.clear();
    program.main.picUnitInfo.visible = true;
    draw_firefans(program, painting);
    EXPECT_EQ(painting.map.figures().size(), 1U);
    painting.map.clear();
    program.campaign.gDispFirefansSelected = false;
    draw_firefans(program, painting);
    ASSERT_EQ(painting.map.figures().size(), 2U);
    EXPECT_EQ(painting.map.figures()[0].pen.FillColor, 255);
    EXPECT_EQ(painting.map.figures()[1].pen.FillColor, 0xFF0000) << "another unit";
}

TEST_F(FireFans, WithNobodySelectedThereAreNoneOfTheSelectedUnit) {
    program.campaign.gDispFirefansSelected = true;
    program.main.picUnitInfo.visible = true;
    draw_firefans(program, painting);
    EXPECT_TRUE(painting.map.empty());
}
