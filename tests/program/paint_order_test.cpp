#include "mapview/painting.h"

#include "tests/support/figures.h"
#include "tests/support/map_test.h"

namespace {

/// A campaign with something of every layer in the upper left corner of the map.
class PaintOrder : public MapTest {
  protected:
    PaintOrder() {
        unit = add_marked("{1}", 300, 300);
        unit->parent_ID = "{2}";
        unit->color = 0x111111;
        const auto headquarters = add_marked("{2}", 500, 300);
        headquarters->color = 0x222222;
        for (const auto& place : {std::pair(-50, -50), {50, -50}, {0, 50}})
            unit->area_of_opeartion->add(vertex(place.first, place.second));
        auto waypoint = std::make_shared<oWaypoint>();
        waypoint->X = waypoint->Y = 400;
        unit->waypoints->add(waypoint, "{W}");
        auto gun = std::make_shared<oForceElements>();
        gun->force_type = 4;
        gun->max_range = 1000;
        campaign.colForceElements->add(gun, " 1");
        auto guns = std::make_shared<oUnitForceElements>();
        guns->Index = 1;
        unit->force_elements->add(guns, "{G}");
        campaign.curUnit = unit;
        main.hierarchy_on = main.linTempLine.visible = true;
        campaign.colFireMissions->add(std::make_shared<oFireMission>(), "{F}");
        auto polygon = std::make_shared<oPolygons>();
        for (const int x : {10, 60, 110}) polygon->coordinates->add(vertex(x, x * x % 90));
        polygon->fillcolor = 0x333333;
        campaign.colPolygons->add(polygon, "{P}");
        campaign.curPolygon = polygon;
        campaign.colCirclePoints->add(vertex(200, 200));
        for (const int x : {10, 20}) campaign.colPathPoints->add(vertex(x, 70));
        auto line = std::make_shared<oLines>();
        line->linewidth = 4;
        for (const int x : {10, 20}) line->colCoords->add(vertex(x, 80));
        campaign.colLines->add(line);
        campaign.gDispUSZ = campaign.gDispUSZAll = campaign.gDispFirefans = campaign.gShowGrid = true;
        campaign.gDispUnitNames = campaign.gDispUnitHQNames = true;
        unit->echelon = "Battalion";
    }

    static std::shared_ptr<oCoordinates> vertex(int x, int y) {
        return std::make_shared<oCoordinates>(oCoordinates{x, y});
    }

    /// The numbers of the layers whose gates are open.
    std::vector<int> open() const {
        std::vector<int> numbers;
        for (const PaintLayer& layer : paint_order())
            if (layer.gate(program)) numbers.push_back(layer.number);
        return numbers;
    }

    /// Where in the paint the first figure stands that is told so, -1 for nowhere.
    static int place_of_first(const std::vector<std::string>& figures, const std::string& start) {
        for (std::size_t i = 0; i < figures.size(); ++i)
            if (figures[i].starts_with(start)) return static_cast<int>(i);
        return -1;
    }

    std::shared_ptr<oUnits> unit;
};

} // namespace

TEST_F(PaintOrder, LayersLieInTheirOrder) {
    main.drawing_polygon = main.set_waypoints = main.showing_range_circles = main.checking_path_range = true;
    picMap_Paint(program);
    EXPECT_TRUE(platform.texts().empty());
    std::vector<std::string> figures;
    for (const auto& figure : program.painting.map.figures())
        figures.push_back(told(figure) + " by " + told(figure.pen));
    const std::vector<std::string> one_of_each{"circle 300,300 r225",      // security zone
                                               "circle 0,0 r6",            // fire mission
                                               "line 300,300 500,300",     // to the headquarters
                                               "line 10,10 60,0",          // polygon being drawn
                                               "polygon 10,10 60,0",       // polygon
                                               "line 300,300 400,400",     // waypoints being set
                                               "circle 200,200 r3",        // range circles
                                               "line 10,70 20,70",         // measured path
                                               "line 150,0 150,6000",      // grid
                                               "line 10,80 20,80",         // line
                                               "text 286,316 unit {1}",    // name
                                               "text 316,285",             // name of the headquarters
                                               "circle 300,300 r150",      // fan
                                               "polygon 250,250 350,250"}; // area
    int last = -1;
    for (const std::string& figure : one_of_each) {
        const int place = place_of_first(figures, figure);
        EXPECT_GT(place, last) << figure;
        last = place;
    }
}

TEST_F(PaintOrder, GatesAreThoseOfTheirLayers) {
    main.drawing_polygon = main.set_waypoints = main.showing_range_circles = main.checking_path_range = true;
    const std::vector<int> all{1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 12, 13, 14, 15, 16, 17, 18, 20};
    EXPECT_EQ(open(), all);
    const std::vector<std::pair<int, bool*>> gates{
        {1, &campaign.gDispUSZ},       {2, &campaign.gDispFireMissions}, {3, &main.hierarchy_on},
        {4, &main.drawing_polygon},    {5, &campaign.gDispPolygons},     {6, &main.set_waypoints},
        {7, &campaign.gDispWaypoints}, {8, &main.showing_range_circles}, {10, &main.checking_path_range},
        {12, &campaign.gShowGrid},     {15, &campaign.gDispUnitNames},   {16, &campaign.gDispUnitHQNames},
        {18, &campaign.gDispFirefans}, {20, &campaign.gDispAooAll}};
    for (const auto& [number, flag] : gates) {
        std::vector<int> without = all;
        std::erase(without, number);
        *flag = false;
        EXPECT_EQ(open(), without) << number;
        *flag = true;
    }
    main.drawing_aoo = true;
    EXPECT_EQ(open(), (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 20}));
    main.drawing_aoo = false;
    campaign.gDispAooSelected = main.picUnitInfo.visible = true;
    EXPECT_EQ(open(), (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20}));
}

TEST_F(PaintOrder, AreaInHandLiesUnderThePathAndTheSelectedOneUnderAllAreas) {
    const auto places = [&](const std::vector<std::string>& starts) {
        picMap_Paint(program);
        const std::vector<std::string> figures = told(program.painting.map);
        std::vector<int> found;
        found.reserve(starts.size());
        for (const std::string& start : starts) found.push_back(place_of_first(figures, start));
        return found;
    };
    main.showing_range_circles = main.checking_path_range = main.drawing_aoo = true;
    const auto drawing = places({"circle 200,200 r3", "line 250,250 350,250", "line 10,70 20,70"});
    EXPECT_GT(drawing[0], -1);
    EXPECT_GT(drawing[1], drawing[0]);
    EXPECT_GT(drawing[2], drawing[1]);
    main.drawing_aoo = false;
    campaign.gDispAooSelected = main.picUnitInfo.visible = true;
    campaign.gDispAooAll = campaign.gDispFirefansSelected = false;
    campaign.gDispFirefansAll = true;
    const auto selected = places({"circle 300,300 r150", "polygon 250,250 350,250"});
    EXPECT_GT(selected[0], -1);
    EXPECT_GT(selected[1], selected[0]);
}

TEST_F(PaintOrder, AreaLeavesItsMaskToTheNextPaint) {
    picMap_Paint(program);
    EXPECT_EQ(program.painting.map.pen.DrawMode, 9);
    campaign.gDispUSZ = campaign.gDispFireMissions = campaign.gDispPolygons = false;
    picMap_Paint(program);
    const auto figures = program.painting.map.figures();
    ASSERT_FALSE(figures.empty());
    EXPECT_EQ(told(figures[0]), "line 300,300 500,300");
    EXPECT_EQ(figures[0].pen.DrawMode, 9);
}
