#include "mapview/painting.h"

#include "tests/support/figures.h"
#include "tests/support/program_test.h"
#include "tools/support/spread_campaign.h"

#include <random>

namespace {

class PaintingInView : public ProgramTest {
  protected:
    /// A campaign all over the map, every option and style at random.
    void make_campaign(unsigned seed) {
        spread_over_map(program, {60, 40, 20, 20, seed}, {});
        std::mt19937 random(seed);
        const auto either = [&] { return std::bernoulli_distribution()(random); };
        DisplayOptions& options = program.campaign;
        for (bool* option :
             {&options.gDispUSZ, &options.gDispUSZFilled, &options.gDispFireMissions, &options.gDispPolygons,
              &options.gDispWaypoints, &options.gDispWayptAll, &options.gDispWayptSelected,
              &options.gDispWayptData, &options.gDispFirefans, &options.gDispFirefansAll, &options.gDispAoo,
              &options.gDispAooAll, &options.gDispAooSelected, &options.gDispUnitNames,
              &options.gDispUnitHQNames, &program.campaign.gShowGrid, &program.main.picUnitInfo.visible})
            *option = either();
        program.campaign.curUnit = program.campaign.colUnits->at(1 + seed % 60);
    }

    void look_at(double left, double top, double width, double height) {
        program.main.picMap.left = -left;
        program.main.picMap.top = -top;
        program.main.picMapwindow.width = width;
        program.main.picMapwindow.height = height;
    }

    /// What of the last paint is in the view.
    std::vector<std::string> seen(const Bounds& view) const {
        DrawingList in_view;
        in_view.wanted = view;
        program.painting.map.replay(in_view);
        std::vector<std::string> all;
        for (const auto& figure : in_view.figures()) all.push_back(told(figure) + " by " + told(figure.pen));
        return all;
    }
};

} // namespace

TEST_F(PaintingInView, PassingOverTheRestChangesNeitherWhatIsSeenNorThePens) {
    std::size_t figures = 0;
    for (unsigned seed = 1; seed <= 40; ++seed) {
        program.campaign.colUnits.drop();
        program.campaign.colLines.drop();
        program.campaign.colPolygons.drop();
        program.campaign.colFireMissions.drop();
        program.campaign.gNextUnitIndex = 1;
        program.main.imgUnit.unload_from(1);
        make_campaign(seed);
        const Bounds view{600.0 + 40 * seed, 300.0 + 90 * seed, 1500.0 + 40 * seed, 900.0 + 90 * seed};
        const Pens before = program.painting.pens();

        look_at(-40000, -40000, 120000, 120000);
        picMap_Paint(program);
        const std::vector<std::string> whole = seen(view);
        const Pens after_whole = program.painting.pens();
        const std::size_t recorded = program.painting.map.figures().size();

        program.painting.set_pens(before);
        look_at(view.left, view.top, view.right - view.left, view.bottom - view.top);
        picMap_Paint(program);
        EXPECT_EQ(seen(view), whole) << seed;
        EXPECT_EQ(program.painting.pens(), after_whole) << seed;
        EXPECT_LT(program.painting.map.figures().size(), recorded) << seed;
        figures += whole.size();
    }
    EXPECT_GT(figures, 1000U);
    EXPECT_TRUE(platform.texts().empty());
}

TEST_F(PaintingInView, ScrolledFarAwayTheViewIsCoveredWithoutANewRefresh) {
    make_campaign(3);
    look_at(0, 0, 500, 500);
    picMap_Paint(program);
    const Pens after = program.painting.pens();
    const Bounds far{3000, 3000, 3500, 3500};
    look_at(3000, 3000, 500, 500);
    cover_view(program);
    const std::vector<std::string> covered = seen(far);
    EXPECT_EQ(program.painting.pens(), after);
    program.painting.set_pens({});
    picMap_Paint(program);
    EXPECT_EQ(covered, seen(far)) << "from the pens that the refresh began with";
    EXPECT_FALSE(covered.empty());
}

TEST_F(PaintingInView, SmallStepsOfScrollingNeedNoPaint) {
    look_at(1000, 1000, 500, 500);
    picMap_Paint(program);
    const long number = program.painting.number;
    look_at(1040, 960, 496, 496);
    cover_view(program);
    EXPECT_EQ(program.painting.number, number);
    look_at(2000, 1000, 496, 496);
    cover_view(program);
    EXPECT_EQ(program.painting.number, number + 1);
}

TEST_F(PaintingInView, CoveringTellsNoFailureAgain) {
    const auto unit = program.campaign.curUnit = add_unit("{1}", "{gone}");
    program.main.hierarchy_on = true;
    picMap_Paint(program);
    EXPECT_EQ(platform.texts().size(), 1U);
    look_at(3000, 3000, 500, 500);
    cover_view(program);
    EXPECT_EQ(platform.texts().size(), 1U);
}

namespace {

/// A view of the upper left corner, in which nothing lies at first.
class ChangedCorners : public PaintingInView {
  protected:
    ChangedCorners() {
        look_at(0, 0, 500, 500);
        show_routes();
    }

    void show_routes() {
        DisplayOptions& options = program.campaign;
        options.gDispWaypoints = options.gDispWayptAll = options.gDispAoo = options.gDispAooAll = true;
        options.gDispWayptData = options.gDispFireMissions = options.gDispUSZ = program.campaign.gShowGrid =
            false;
    }

    static std::shared_ptr<oCoordinates> vertex(int x, int y) {
        return std::make_shared<oCoordinates>(oCoordinates{x, y});
    }

    std::shared_ptr<oUnits> far_unit(const std::string& id) {
        auto unit = add_unit(id);
        unit->xcoord = unit->ycoord = 4000;
        return unit;
    }

    std::size_t seen_now() {
        picMap_Paint(program);
        return seen({0, 0, 500, 500}).size();
    }
};

} // namespace

TEST_F(ChangedCorners, OfALineAreSeenAtTheNextPaint) {
    auto line = std::make_shared<oLines>();
    for (const int x : {4000, 4100}) line->colCoords->add(vertex(x, 4000));
    program.campaign.colLines->add(line);
    EXPECT_EQ(seen_now(), 0U);
    line->colCoords->at(1)->x_cor = 100;
    EXPECT_EQ(seen_now(), 0U);
    line->colCoords->at(1)->y_cor = 100;
    EXPECT_EQ(seen_now(), 1U) << "moved in its place";
    line->colCoords->remove_at(1);
    EXPECT_EQ(seen_now(), 0U) << "taken out";
    line->colCoords->insert_after(0, vertex(100, 100));
    EXPECT_EQ(seen_now(), 1U) << "put in";
    line->colCoords->remove_at(1);
    line->colCoords->add(vertex(100, 100));
    EXPECT_EQ(seen_now(), 1U) << "added";
    line->colCoords.drop();
    EXPECT_EQ(seen_now(), 0U);
}

TEST_F(ChangedCorners, OfARouteAreSeenAtTheNextPaint) {
    const auto unit = far_unit("{1}");
    oWaypoint waypoint;
    waypoint.ID = "{W}";
    waypoint.X = waypoint.Y = 4100;
    unit->waypoints->add(std::make_shared<oWaypoint>(waypoint), waypoint.ID);
    EXPECT_EQ(seen_now(), 0U);
    waypoint.X = waypoint.Y = 100;
    unit->waypoints->remove("{W}");
    unit->waypoints->add(std::make_shared<oWaypoint>(waypoint), waypoint.ID);
    EXPECT_EQ(seen_now(), 2U) << "the way and its end";
    program.campaign.gDispWayptData = true;
    EXPECT_EQ(seen_now(), 5U);
    unit->xcoord = unit->ycoord = 50;
    unit->waypoints->clear();
    EXPECT_EQ(seen_now(), 0U);
}

TEST_F(ChangedCorners, TextsOfAWaypointFarToTheLeftAreSeen) {
    look_at(3000, 3000, 500, 500);
    program.campaign.gDispWayptData = true;
    oWaypoint waypoint;
    waypoint.X = 1500;
    waypoint.Y = 3100;
    waypoint.notes = std::string(200, 'W');
    const auto unit = add_unit("{1}");
    unit->xcoord = unit->ycoord = 1500;
    unit->waypoints->add(std::make_shared<oWaypoint>(waypoint), "{W}");
    picMap_Paint(program);
    const auto texts = seen({3000, 3000, 3500, 3500});
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_TRUE(texts[0].starts_with("text 1440,3132 WWW"));
}

TEST_F(ChangedCorners, OfAnAreaAreSeenAtTheNextPaint) {
    const auto unit = far_unit("{1}");
    const auto copy = far_unit("{2}");
    for (const auto& [x, y] : {std::pair(0, 0), {60, 0}, {0, 60}}) {
        unit->area_of_opeartion->add(vertex(x, y));
        copy->area_of_opeartion->add(unit->area_of_opeartion->at(unit->area_of_opeartion.count()));
    }
    EXPECT_EQ(seen_now(), 0U);
    for (const auto& shared : unit->area_of_opeartion) {
        shared->x_cor = shared->x_cor - 3900;
        shared->y_cor = shared->y_cor - 3900;
    }
    EXPECT_EQ(seen_now(), 2U) << "units can have the same points";
    const auto other = far_unit("{3}");
    other->area_of_opeartion = unit->area_of_opeartion;
    EXPECT_EQ(seen_now(), 3U) << "or the same list of them";
    copy->area_of_opeartion.drop();
    EXPECT_EQ(seen_now(), 2U);
    unit->xcoord = 3000;
    EXPECT_EQ(seen_now(), 1U) << "areas go with their unit";
}
