#include "operations/unit_plans.h"

#include "tests/support/program_test.h"

namespace {

class UnitPlansOfAll : public ProgramTest {
  protected:
    UnitPlansOfAll() {
        for (const char* const id : {"a", "b", "c"}) add_unit(id);
        for (const char* const id : {"c", "b"}) {
            oUnits& unit = *program.campaign.colUnits->item(id);
            unit.waypoints->add(std::make_shared<oWaypoint>(), "{W}");
            for (const int x : {0, 60, 30})
                unit.area_of_opeartion->add(std::make_shared<oCoordinates>(oCoordinates{x, 2 * x}));
        }
    }

    static std::string names(const std::vector<UnitPlans::Plan>& plans) {
        std::string all;
        for (const UnitPlans::Plan& plan : plans) all += plan.unit->ID;
        return all;
    }
};

} // namespace

TEST_F(UnitPlansOfAll, AreThoseOfUnitsWithPlansInTheOrderOfTheUnits) {
    program.campaign.colUnits->item("b")->area_of_opeartion->remove_at(1);
    EXPECT_EQ(names(unit_plans(program).routes), "bc");
    EXPECT_EQ(names(unit_plans(program).areas), "c") << "two corners are no area";
}

TEST_F(UnitPlansOfAll, AreGatheredOnceAsLongAsNothingChanges) {
    const auto* const routes = unit_plans(program).routes.data();
    const auto* const areas = unit_plans(program).areas.data();
    program.campaign.colUnits->item("b")->name = "another";
    EXPECT_EQ(unit_plans(program).routes.data(), routes);
    EXPECT_EQ(unit_plans(program).areas.data(), areas);
}

TEST_F(UnitPlansOfAll, LieWhereTheirUnitIs) {
    oUnits& unit = *program.campaign.colUnits->item("c");
    const Bounds before = unit_plans(program).areas.back().bounds;
    unit.xcoord = 5000; // beyond the texts of its waypoint
    const Bounds after = unit_plans(program).areas.back().bounds;
    EXPECT_EQ(after.left, before.left + 5000);
    EXPECT_EQ(after.right, before.right + 5000);
    EXPECT_EQ(after.top, before.top);
    EXPECT_GE(Bounds(unit_plans(program).routes.back().bounds).right, 5000) << "the way begins at the unit";
}
