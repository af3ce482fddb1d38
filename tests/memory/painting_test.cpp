#include "mapview/painting.h"
#include "tests/memory/scarce_memory.h"
#include "tests/support/figures.h"
#include "tests/support/map_test.h"

#include <memory>
#include <string>
#include <vector>

namespace {

using Told = std::vector<std::string>;
using testing::IsSubsetOf;
using testing::IsSupersetOf;

/// Two units, each with a fan, a way, an area and a name.
class PaintingInScarceMemory : public MapTest {
  protected:
    PaintingInScarceMemory() {
        auto entry = std::make_shared<oForceElements>();
        entry->force_type = 4;
        entry->max_range = 2000;
        campaign.colForceElements->add(entry, " 13");
        add_with_plans("{1}", 300);
        add_with_plans("{2}", 600);
        campaign.gDispUnitNames = true;
    }

    void add_with_plans(const std::string& id, int place) {
        const auto unit = add_marked(id, place, place);
        auto element = std::make_shared<oUnitForceElements>();
        element->ID = "{F}";
        element->Index = 13;
        unit->force_elements->add(element, element->ID);
        unit->waypoints->add(std::make_shared<oWaypoint>(), "{W}");
        for (const int x : {0, 60, 30})
            unit->area_of_opeartion->add(std::make_shared<oCoordinates>(oCoordinates{x, 2 * x}));
    }

    /// The figures of a paint from scratch.
    Told painted() {
        program.painting = {};
        picMap_Paint(program);
        return shown();
    }

    Told shown() const {
        Told all = told(program.painting.map);
        for (const std::string& figure : told(program.painting.overview)) all.push_back("overview " + figure);
        return all;
    }
};

} // namespace

TEST_F(PaintingInScarceMemory, EndsInItsMessageWithoutHalfFiguresAndTheNextOneIsWhole) {
    campaign.gDispFirefans = campaign.gDispOmFirefans = false;
    const Told without_fans = painted();
    campaign.gDispFirefans = campaign.gDispOmFirefans = true;
    const Told whole = painted();
    ASSERT_EQ(whole.size(), without_fans.size() + 4) << "two on the map and two on the overview";
    std::size_t times_without_fans = 0;
    try_with_scarce_memory([&](auto scarcely) {
        program.painting = {};
        platform.messages.clear();
        EXPECT_EQ(scarcely([&] { picMap_Paint(program); }), 0);
        EXPECT_THAT(shown(), IsSubsetOf(whole));
        if (platform.texts() == Told{"Error 7 when drawing firefans."}) {
            EXPECT_THAT(shown(), IsSupersetOf(without_fans)) << "the other layers stand";
            ++times_without_fans;
        } else if (!platform.texts().empty()) {
            EXPECT_EQ(platform.texts(), Told{"Error 7 when updating the map."});
        } else {
            EXPECT_EQ(shown(), whole);
        }
        picMap_Paint(program);
        EXPECT_EQ(shown(), whole);
    });
    EXPECT_GT(times_without_fans, 0U);
}
