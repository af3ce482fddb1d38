#include "mapview/draw_units.h"

#include "mapview/painting.h"
#include "tests/support/figures.h"
#include "tests/support/program_test.h"

namespace {

using Told = std::vector<std::string>;

class UnitDrawing : public ProgramTest {
  protected:
    void place(const std::string& id, int x, int y) {
        program.campaign.colUnits->item(id)->xcoord = static_cast<std::int16_t>(x);
        program.campaign.colUnits->item(id)->ycoord = static_cast<std::int16_t>(y);
    }

    UnitMarker& add_marker(const std::string& id, double left, double top) {
        UnitMarker& marker = program.main.imgUnit.load(program.campaign.gNextUnitIndex++);
        marker.tag = id;
        marker.left = left;
        marker.top = top;
        marker.width = 29;
        marker.height = 31;
        marker.visible = true;
        return marker;
    }

    Painting painting;
};

} // namespace

TEST_F(UnitDrawing, HierarchyIsABlueLineUpAndGreenLinesDownToAnyDepth) {
    const auto unit = add_unit("{1}", "{0}");
    add_unit("{0}");
    add_unit("{2}", "{1}");
    add_unit("{3}", "{2}");
    add_child(*unit, "{2}");
    add_child(*program.campaign.colUnits->item("{2}"), "{3}");
    place("{1}", 10, 10);
    place("{2}", 20, 20);
    place("{3}", 30, 30);
    program.campaign.curUnit = unit;
    EXPECT_FALSE(hierarchy_is_shown(program));
    program.main.hierarchy_on = true;
    EXPECT_TRUE(hierarchy_is_shown(program));
    painting.map.pen.DrawMode = 9;
    draw_hierarchy(program, painting);
    EXPECT_EQ(told(painting.map), (Told{"line 10,10 0,0", "line 10,10 20,20", "line 20,20 30,30"}));
    EXPECT_EQ(told(painting.map.figures()[0].pen), "fore 12582912 fill 0 style 1 dash 0 width 3 mode 9");
    EXPECT_EQ(painting.map.figures()[2].pen.ForeColor, 0x8000);
    EXPECT_EQ(told(painting.map.pen), "fore 0 fill 0 style 1 dash 0 width 1 mode 9");
    program.campaign.curUnit = nullptr;
    EXPECT_FALSE(hierarchy_is_shown(program));
}

TEST_F(UnitDrawing, UnitWithoutHqHasNoBlueLine) {
    program.campaign.curUnit = add_unit("{1}");
    draw_hierarchy(program, painting);
    EXPECT_TRUE(painting.map.figures().empty());
}

TEST_F(UnitDrawing, LinksInACircleOrToNobodyEndThePaintWithTheirNumber) {
    const auto unit = add_unit("{1}");
    add_child(*unit, "{1}");
    program.campaign.curUnit = unit;
    program.main.hierarchy_on = true;
    picMap_Paint(program);
    unit->children.drop();
    add_child(*unit, "{gone}");
    picMap_Paint(program);
    EXPECT_EQ(platform.texts(), (Told{"Error 28 when updating the map.", "Error 5 when updating the map."}));
}

TEST_F(UnitDrawing, CircleIsFoundBeforeItsOtherSubordinatesAreDrawnAgain) {
    const auto unit = add_unit("{1}");
    for (int i = 0; i < 100; ++i) {
        const std::string id = "{below " + std::to_string(i) + "}";
        add_unit(id);
        add_child(*unit, id);
    }
    add_child(*unit, "{1}");
    program.campaign.curUnit = unit;
    EXPECT_EQ(number_of([&] { draw_hierarchy(program, painting); }), 28);
    EXPECT_EQ(painting.map.figures().size(), 101U);
}

TEST_F(UnitDrawing, NamesStandUnderAndBesideVisibleMarkers) {
    add_unit("{1}")->parent_name = "the HQ";
    add_unit("{2}");
    add_unit("{3}");
    add_marker("{1}", 100, 200);
    add_marker("{2}", 300, 200).visible = false;
    add_marker(deleted_tag, 400, 200);
    for (const auto draw : {draw_unit_names, draw_unit_hq_names}) {
        painting.map.pen.FontSize = 10; // of range circles
        painting.map.pen.ForeColor = 0xC00000;
        draw(program, painting);
        EXPECT_EQ(painting.map.pen.ForeColor, 0);
    }
    for (const auto& figure : painting.map.figures()) EXPECT_EQ(figure.pen.ForeColor, 0);
    EXPECT_EQ(painting.map.figures()[1].pen.FontSize, 8);
    EXPECT_EQ(told(painting.map), (Told{"text 100,231 unit {1}", "text 130,200 the HQ"}));
    EXPECT_EQ(painting.map.figures()[0].pen.FontSize, 8);
    EXPECT_TRUE(painting.map.figures()[0].pen.FontBold);
    EXPECT_TRUE(painting.map.figures()[1].pen.FontBold);
    EXPECT_FALSE(painting.map.pen.FontBold);
}

TEST_F(UnitDrawing, NameOfAMarkerWhoseUnitIsGoneFailsWhereverItStands) {
    painting.map.wanted = {0, 0, 1000, 1000};
    UnitMarker& marker = add_marker("{gone}", 0, 0);
    for (const Point place : {Point{500, 500}, {-500, 500}, {5000, 500}, {500, -500}, {500, 5000}}) {
        marker.left = place.x;
        marker.top = place.y;
        painting.map.pen.FontBold = false;
        EXPECT_EQ(number_of([&] { draw_unit_names(program, painting); }), 5) << place.x << " " << place.y;
        EXPECT_TRUE(painting.map.pen.FontBold) << "as the failure leaves it";
    }
}

TEST_F(UnitDrawing, NamesFollowUnitsMarkersAndTags) {
    const auto drawn = [&] {
        painting.map.clear();
        draw_unit_names(program, painting);
        return told(painting.map);
    };
    add_unit("{1}");
    add_unit("{2}")->name = "second";
    EXPECT_EQ(drawn(), Told{});
    UnitMarker& marker = add_marker("{1}", 100, 200);
    EXPECT_EQ(drawn(), Told{"text 100,231 unit {1}"});
    marker.tag = "{2}";
    EXPECT_EQ(drawn(), Told{"text 100,231 second"});
    const Tag of_another(std::string("{1}"));
    marker.tag = of_another;
    EXPECT_EQ(drawn(), Told{"text 100,231 unit {1}"});
    program.campaign.colUnits->remove("{1}");
    EXPECT_EQ(number_of(drawn), 5);
    marker.tag = "{2}";
    EXPECT_EQ(drawn(), Told{"text 100,231 second"});
    marker.tag = deleted_tag;
    EXPECT_EQ(drawn(), Told{});
}

TEST_F(UnitDrawing, NamesAreGatedByTheirOptions) {
    EXPECT_FALSE(unit_names_are_shown(program));
    EXPECT_FALSE(unit_hq_names_are_shown(program));
    program.campaign.gDispUnitNames = true;
    EXPECT_TRUE(unit_names_are_shown(program));
    EXPECT_FALSE(unit_hq_names_are_shown(program));
    program.campaign.gDispUnitHQNames = true;
    EXPECT_TRUE(unit_hq_names_are_shown(program));
}
