#include "core/campaign.h"

#include "core/frmMain.h"

#include <gtest/gtest.h>

#include <type_traits>

// The widths are those of the files.
static_assert(std::is_same_v<decltype(oUnits::color), std::int32_t>);
static_assert(std::is_same_v<decltype(oUnits::xcoord), Counted<std::int16_t, UnitMoves>>);
static_assert(sizeof(oUnits::xcoord) == 2);
static_assert(std::is_same_v<decltype(oUnitForceElements::Index), Counted<std::int16_t, HoldingChanges>>);
static_assert(sizeof(oUnitForceElements::Index) == 2);
// An entry does not change through its list, so that the version of the list tells of every change.
static_assert(std::is_same_v<decltype(Campaign::colForceElements), CollectionRef<const oForceElements>>);
static_assert(std::is_same_v<decltype(oUnits::img_index), std::int16_t>);
static_assert(std::is_same_v<decltype(oUnits::state), std::int16_t>);
static_assert(std::is_same_v<decltype(oWaypoint::speed), double>);
static_assert(std::is_same_v<decltype(oWaypoint::X), float>);
static_assert(std::is_same_v<decltype(oWaypoint::range), std::int16_t>);
static_assert(sizeof(oCoordinates) == 8 && std::is_same_v<decltype(oCoordinates::x_cor), Coordinate>);
static_assert(std::is_same_v<decltype(+oCoordinates{}.x_cor), std::int32_t>);
static_assert(std::is_same_v<decltype(oLines::arrow1_x), std::int32_t>);
static_assert(std::is_same_v<decltype(oTowns::population), std::int16_t>);
static_assert(std::is_same_v<decltype(oTowns::xcoord), std::string>);
static_assert(std::is_same_v<decltype(oSegment::X), float>);
static_assert(std::is_base_of_v<oUnitForceElements, oAccuUFE>);

TEST(Campaign, DisplayOptionsStartAsTold) {
    const DisplayOptions start;
    EXPECT_TRUE(start.gDispUnits && start.gDispLabels && start.gDispLines && start.gDispShapes);
    EXPECT_TRUE(start.gDispPolygons && start.gDispFireMissions && start.gDispOmUnits &&
                start.gDispOmFirefans);
    EXPECT_TRUE(start.gDispOmLines && start.gDispAoo && start.gDispAooAll && start.gDispWaypoints);
    EXPECT_TRUE(start.gDispWayptAll && start.gDispWayptData && start.gDispFirefansAll &&
                start.gDispUSZFilled);
    EXPECT_FALSE(start.gDispAooSelected || start.gDispWayptSelected || start.gDispFirefansSelected);
    EXPECT_FALSE(start.gDispUnitNames || start.gDispUnitHQNames || start.gDispFirefans);
    EXPECT_FALSE(start.gDispUSZ || start.gDispUSZSelected || start.gDispUSZAll);
}

TEST(Campaign, SaveOptionsStartOn) {
    const SaveOptions start;
    EXPECT_TRUE(start.gSaveUnits && start.gSaveShapes && start.gSaveLabels && start.gSaveLines);
    EXPECT_TRUE(start.gSavePolygons && start.gSaveFmissions);
}

TEST(Campaign, ClockStartsOnTheFirstMorning) {
    const Campaign start;
    EXPECT_EQ(start.gDateYear, "1942");
    EXPECT_EQ(start.gDateMonth, "November");
    EXPECT_EQ(start.gDateDay, "25");
    EXPECT_EQ(start.gDateHour, "07");
    EXPECT_EQ(start.gDateMinute, "00");
}

TEST(Campaign, CountersStartAtOneAndFlagsOff) {
    const Campaign start;
    EXPECT_EQ(start.gNextUnitIndex, 1);
    EXPECT_EQ(start.gNextLabelIndex, 1);
    EXPECT_EQ(start.gNextShapeIndex, 1);
    EXPECT_FALSE(start.gShowGrid || start.gUnitEdited || start.gCopyColorCreate || start.gCopyColorEdit);
    EXPECT_FALSE(start.placing_label || start.placing_fire_mission || start.selecting_fire_mission ||
                 start.moving_fire_mission || start.gCoordCancelled);
}

TEST(Campaign, TwoUnitsOfOneNameAreTwoUnits) {
    Campaign campaign;
    for (const char* id : {"a", "b"}) {
        auto unit = std::make_shared<oUnits>();
        unit->ID = id;
        unit->name = "1st Company";
        campaign.colUnits->add(unit, id);
    }
    EXPECT_EQ(campaign.colUnits.count(), 2U);
    EXPECT_EQ(campaign.colUnits->item("b")->ID, "b");
}

TEST(FrmMain, ToolFlagsStartOff) {
    const ToolFlags flags;
    EXPECT_FALSE(flags.show_coords || flags.place_unit || flags.unit_deleted || flags.set_waypoints ||
                 flags.moving_waypoint || flags.drawing_lines || flags.line_ended || flags.deleting_line ||
                 flags.deleting_line_point || flags.moving_line_point || flags.inserting_line_point ||
                 flags.placing_shape || flags.moving_shape || flags.map_popup_shown ||
                 flags.transferring_fe || flags.setting_firefan || flags.drawing_aoo ||
                 flags.aoo_popup_guard || flags.checking_range || flags.checking_path_range ||
                 flags.showing_range_circles || flags.drawing_polygon || flags.deleting_polygon ||
                 flags.deleting_polygon_point || flags.moving_polygon || flags.moving_polygon_point ||
                 flags.inserting_polygon_point || flags.hierarchy_on || flags.edge_scrolling);
    EXPECT_EQ(flags.selected_point, 0);
    EXPECT_EQ(flags.selected_waypoint, "");
}

TEST(FrmMain, MenuChecksStartAsTold) {
    const frmMain main;
    EXPECT_TRUE(main.mnuShowHideUnits.checked && main.mnuViewFFoverview.checked &&
                main.mnuOVPU_showlines.checked && main.mnuOVPU_show_units.checked);
    EXPECT_FALSE(main.mnuUnitState.checked || main.mnuLeaveAOO.checked || main.mnuRangeCircles.checked);
    EXPECT_FALSE(main.mnuDeleteSelected.enabled || main.mnuUP_delete_all.enabled);
    EXPECT_TRUE(main.mnuUP_delete.enabled && main.mnuUP_edit.enabled && main.mnuUP_moveto.enabled);
}

TEST(FrmMain, ControlThatWasNeverMadeFailsWith340) {
    const frmMain main;
    EXPECT_THROW(main.imgUnit(1), Failure);
    EXPECT_FALSE(main.imgUnit.has(1));
    EXPECT_TRUE(main.imgUnit.has(0));
}
