#include "tools/support/spread_campaign.h"

#include "core/numbers.h"
#include "core/unit_place.h"
#include "mapview/unit_marker.h"

#include <array>
#include <random>

namespace {

struct Kind {
    const char* unittype;
    const char* echelon;
    bool has_guns;
};

constexpr std::array<Kind, 5> kinds{{{"Rifle Company", "Company", false},
                                     {"Rifle Platoon", "Platoon", false},
                                     {"Mortar Platoon", "Platoon", false},
                                     {"Rifle Battalion", "Battalion", false},
                                     {"Howitzer Battery", "Battery", true}}};

constexpr int gun_range = 9000; // metres
constexpr double fan = gun_range * 0.15 + 2;
constexpr double reach = 420; // of everything else: lines, routes, areas, zones, texts

bool is_near(const Bounds& area, Point place, double distance) {
    return area.meets({place.x - distance, place.y - distance, place.x + distance, place.y + distance});
}

/// Even places over the map, and small distances around them.
class Places {
  public:
    Places(const Program& program, unsigned seed)
        : random(seed), right(static_cast<int>(program.main.picMap.width) - 1),
          bottom(static_cast<int>(program.main.picMap.height) - 1) {}

    int x() { return number(0, right); }
    int y() { return number(0, bottom); }
    int number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random); }
    std::shared_ptr<oCoordinates> near(int x, int y, int reach) {
        return std::make_shared<oCoordinates>(
            oCoordinates{x + number(-reach, reach), y + number(-reach, reach)});
    }

  private:
    std::mt19937 random;
    int right;
    int bottom;
};

void add_guns(oUnits& unit, Places& places) {
    auto guns = std::make_shared<oUnitForceElements>();
    guns->ID = unit.ID + " guns";
    guns->Index = 1;
    guns->quantity = 4;
    guns->FireFanAngle = static_cast<std::int16_t>(places.number(0, 359));
    unit.force_elements->add(guns, guns->ID);
}

void add_waypoints(oUnits& unit, Places& places) {
    for (int i = 0; i < 2; ++i) {
        auto waypoint = std::make_shared<oWaypoint>();
        waypoint->ID = unit.ID + " waypoint " + std::to_string(i);
        waypoint->speed = 4.5;
        waypoint->end_month = "November";
        waypoint->end_day = "25";
        waypoint->end_hour = "08";
        waypoint->end_minute = "30";
        waypoint->X = static_cast<float>(unit.xcoord + places.number(-200, 200));
        waypoint->Y = static_cast<float>(unit.ycoord + places.number(-200, 200));
        waypoint->range = 1350;
        unit.waypoints->add(waypoint, waypoint->ID);
    }
}

void add_unit(Program& program, Places& places, const Bounds& area, int number) {
    const Kind& kind = kinds[static_cast<std::size_t>(number) % kinds.size()];
    auto unit = std::make_shared<oUnits>();
    unit->ID = std::to_string(number);
    unit->name = std::to_string(number) + "/1461";
    unit->parent_name = "1461st Rifle";
    unit->unittype = kind.unittype;
    unit->echelon = kind.echelon;
    unit->symbol = "\\data\\forces\\allied forces\\Rifle Company.gif";
    unit->affiliation = number % 2 == 0 ? "Allied" : "Axis";
    unit->color = number % 2 == 0 ? 5263615 : 16744576;
    unit->order_id = "Line unit";
    unit->op_status = "Deployed";
    unit->xcoord = static_cast<std::int16_t>(places.x());
    unit->ycoord = static_cast<std::int16_t>(places.y());
    if (kind.has_guns) add_guns(*unit, places);
    add_waypoints(*unit, places);
    for (int i = 0; i < 5; ++i) unit->area_of_opeartion->add(places.near(0, 0, 150));
    if (!is_near(area, place_of(*unit), kind.has_guns ? fan : reach)) return;
    program.campaign.colUnits->add(unit, unit->ID);
    unit->img_index = program.campaign.gNextUnitIndex;
    make_unit_marker(program, *unit);
}

void add_line(Program& program, Places& places, const Bounds& area, int number) {
    auto line = std::make_shared<oLines>();
    line->linecolor = 192;
    line->linestyle = static_cast<std::int16_t>(number % 5 + 1);
    line->linewidth = static_cast<std::int16_t>(number % 3 + 1);
    line->is_boundry = number % 4 == 0;
    line->boundry_size = "Battalion";
    const int x = places.x();
    const int y = places.y();
    for (int i = 0; i < 10; ++i) line->colCoords->add(places.near(x, y, 200));
    if (is_near(area, {static_cast<double>(x), static_cast<double>(y)}, reach))
        program.campaign.colLines->add(line);
}

void add_polygon(Program& program, Places& places, const Bounds& area, int number) {
    auto polygon = std::make_shared<oPolygons>();
    polygon->drawmode = number % 2 == 0 ? 9 : 13;
    polygon->fillcolor = 0x80FFFF;
    polygon->borderwidth = 2;
    polygon->notes = "Objective " + std::to_string(number);
    const int x = places.x();
    const int y = places.y();
    for (int i = 0; i < 8; ++i) polygon->coordinates->add(places.near(x, y, 150));
    if (is_near(area, {static_cast<double>(x), static_cast<double>(y)}, reach))
        program.campaign.colPolygons->add(polygon, std::to_string(number));
}

void add_mission(Program& program, Places& places, const Bounds& area, int number) {
    auto mission = std::make_shared<oFireMission>();
    mission->missiontype = static_cast<std::int16_t>(number % 5);
    mission->pattern = static_cast<std::int16_t>(number % 5);
    mission->line_length = 400;
    mission->xcoord = static_cast<std::int16_t>(places.x());
    mission->ycoord = static_cast<std::int16_t>(places.y());
    if (is_near(area, {static_cast<double>(mission->xcoord), static_cast<double>(mission->ycoord)}, reach))
        program.campaign.colFireMissions->add(mission, std::to_string(number));
}

void add_gun_to_catalogue(Program& program) {
    auto gun = std::make_shared<oForceElements>();
    gun->force_type = 4;
    gun->firefan = true;
    gun->max_range = gun_range;
    program.campaign.colForceElements->add(gun, str(1));
}

void show_everything(DisplayOptions& options) {
    for (bool DisplayOptions::*option :
         {&DisplayOptions::gDispFireMissions, &DisplayOptions::gDispPolygons, &DisplayOptions::gDispAoo,
          &DisplayOptions::gDispAooAll, &DisplayOptions::gDispWaypoints, &DisplayOptions::gDispWayptAll,
          &DisplayOptions::gDispWayptData, &DisplayOptions::gDispFirefans, &DisplayOptions::gDispFirefansAll,
          &DisplayOptions::gDispUnitNames, &DisplayOptions::gDispUnitHQNames, &DisplayOptions::gDispUSZ,
          &DisplayOptions::gDispUSZAll})
        options.*option = true;
}

} // namespace

void spread_over_map(Program& program, const Spread& spread, const Bounds& area) {
    Places places(program, spread.seed);
    program.campaign.colForceElements.drop();
    add_gun_to_catalogue(program);
    for (int i = 0; i < spread.units; ++i) add_unit(program, places, area, i);
    for (int i = 0; i < spread.lines; ++i) add_line(program, places, area, i);
    for (int i = 0; i < spread.polygons; ++i) add_polygon(program, places, area, i);
    for (int i = 0; i < spread.missions; ++i) add_mission(program, places, area, i);
    show_everything(program.campaign);
    program.campaign.gShowGrid = true;
}
