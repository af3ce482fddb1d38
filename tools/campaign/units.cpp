#include "tools/campaign/units.h"

#include "core/identity.h"
#include "core/numbers.h"
#include "core/reference_files.h"
#include "mapview/unit_marker.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iostream>
#include <numbers>
#include <stdexcept>

namespace {

constexpr double map_km_east = 36.45;
constexpr double map_km_north = 40.68;

bool holds(const std::string& text, const char* word) { return text.find(word) != std::string::npos; }

/// Troops that stand behind those who hold the front.
bool is_rear(const std::string& type) {
    constexpr std::array<const char*, 9> words{"Artillery", "Supply", "Medical", "Signal", "Rocket",
                                               "AA ",       "Flak",   "Mortar",  "Sapper"};
    return std::any_of(words.begin(), words.end(), [&](const char* word) { return holds(type, word); });
}

struct Offset {
    double side;    // to the right of the front's direction
    double forward; // km
};

Deployment moved(const Deployment& from, const Offset& by, double width) {
    const double angle = from.facing * std::numbers::pi / 180;
    Deployment to = from;
    to.east += by.forward * std::sin(angle) + by.side * std::cos(angle);
    to.north += by.forward * std::cos(angle) - by.side * std::sin(angle);
    to.east = std::clamp(to.east, 0.3, map_km_east - 0.3);
    to.north = std::clamp(to.north, 0.4, map_km_north - 0.4);
    to.width = width;
    return to;
}

double depth_below(const std::string& echelon) {
    if (echelon == "Division") return 2.1;
    if (echelon == "Brigade" || echelon == "Regiment") return 0.85;
    return 0.42;
}

constexpr double closest = 0.36; // km between markers in a row

std::string roman(std::size_t number) {
    constexpr std::array<const char*, 9> texts{"I", "II", "III", "IV", "V", "VI", "VII", "VIII", "IX"};
    return number <= texts.size() ? texts[number - 1] : std::to_string(number);
}

/// The part of a name that its subordinates carry: "1461" of "1461st Rifle Regiment".
std::string short_name(const std::string& name) {
    const std::size_t digits = name.find_first_not_of("0123456789");
    const std::string first = name.substr(0, name.find(' '));
    return digits > 0 && digits != std::string::npos ? name.substr(0, digits) : first;
}

std::string numbered(const Formation& formation, std::size_t number, const std::string& headquarters) {
    const bool battalion = holds(formation.type, "Battalion");
    return (battalion ? roman(number) : std::to_string(number)) + "/" + short_name(headquarters);
}

} // namespace

void UnitMaker::make(const std::vector<Formation>& formations) {
    for (const Formation& formation : formations)
        tree(formation, formation.name, formation.deployment, nullptr);
}

bool UnitMaker::is_free(Point place) const {
    for (const auto& unit : program.campaign.colUnits)
        if (std::abs(unit->xcoord - place.x) < marker_width + 1 &&
            std::abs(unit->ycoord - place.y) < marker_height + 1)
            return false;
    return true;
}

/// The nearest place where the marker hides no other one, looked for in rings around the one that the plan
/// gives.
Point UnitMaker::free_place(Point wanted) const {
    constexpr double between_rings = 10;
    constexpr int directions = 12;
    for (int ring = 0; ring < 20; ++ring)
        for (int i = 0; i < directions; ++i) {
            const double angle = i * 2 * std::numbers::pi / directions;
            const Point place{wanted.x + ring * between_rings * std::cos(angle),
                              wanted.y + ring * between_rings * std::sin(angle)};
            if (is_free(place)) return place;
        }
    throw std::runtime_error("too many units in one place");
}

std::shared_ptr<oUnits> UnitMaker::unit(const Formation& formation, const std::string& name,
                                        const Deployment& where, oUnits* headquarters) {
    auto made = std::make_shared<oUnits>();
    Campaign& campaign = program.campaign;
    const bool allied = formation.side == "Allied";
    made->ID = new_guid(program.platform);
    made->unittype = formation.type;
    made->symbol = std::string("\\data\\forces\\") + (allied ? "allied" : "axis") + " forces\\" +
                   formation.type + ".gif";
    made->color = formation.colour;
    const Point place_of_marker = free_place({where.east * 150, (40 - where.north) * 150 + 102});
    made->xcoord = to_int16(place_of_marker.x);
    made->ycoord = to_int16(place_of_marker.y);
    made->name = name;
    made->echelon = echelon_of_file_name(formation.type);
    made->nationality = formation.nationality;
    made->affiliation = formation.side;
    const auto place = campaign.colUnits.count();
    if (allied) {
        const auto& player = campaign.colRussianPlayers->at(1 + place % campaign.colRussianPlayers.count());
        made->player_name = player->name;
        made->player_email = player->email;
    } else {
        const auto& player = campaign.colGermanPlayers->at(1 + place % campaign.colGermanPlayers.count());
        made->player_name = player->name;
        made->player_email = player->email;
    }
    const auto& master = campaign.colGameMasters->at(allied ? 1 : 2);
    made->gm_name = master->name;
    made->gm_email = master->email;
    const bool line_unit =
        made->echelon == "Company" || made->echelon == "Platoon" || made->echelon == "Battery";
    made->order_id = holds(formation.type, "Supply") ? "Supply column"
                     : line_unit                     ? "Line unit"
                                                     : "Rear echelon";
    made->op_status = made->order_id == "Line unit" ? (allied ? "Attacking" : "Defensive") : "Deployed";
    made->fitness = place % 5 == 0 ? "80 %" : "90 %";
    made->supply_req = static_cast<std::int16_t>(holds(formation.type, "Artillery Battery") ? 6
                                                 : line_unit                                ? 2
                                                                                            : 1);
    made->current_supply = made->supply_req;
    made->state = static_cast<std::int16_t>(line_unit ? 1 + place % 7 / 5 : 0);
    if (headquarters != nullptr) {
        made->parent_ID = headquarters->ID;
        made->parent_name = headquarters->name;
        headquarters->children->add(std::make_shared<oChildren>(oChildren{made->ID, made->name}), made->ID);
    }
    add_holdings(*made);
    made->img_index = campaign.gNextUnitIndex;
    campaign.colUnits->add(made, made->ID);
    make_unit_marker(program, *made);
    return made;
}

void UnitMaker::tree(const Formation& formation, const std::string& name, const Deployment& where,
                     oUnits* headquarters) {
    const auto made = unit(formation, name, where, headquarters);
    std::vector<const Formation*> front;
    std::vector<const Formation*> rear;
    for (const Formation& child : formation.children) (is_rear(child.type) ? rear : front).push_back(&child);
    const double depth = depth_below(made->echelon);
    std::map<std::string, std::size_t> counted;
    const auto row = [&](const std::vector<const Formation*>& children, double forward) {
        const double spacing =
            std::max(closest, where.width / static_cast<double>(std::max<std::size_t>(children.size(), 1)));
        double side = -spacing * static_cast<double>(children.size() - 1) / 2;
        for (const Formation* child : children) {
            const std::string child_name =
                child->name.empty() ? numbered(*child, ++counted[child->type], name) : child->name;
            const Deployment place =
                child->deployed ? child->deployment : moved(where, {side, forward}, spacing * 0.92);
            tree(*child, child_name, place, made.get());
            side += spacing;
        }
    };
    row(front, depth);
    row(rear, -depth * 0.55);
}

const std::vector<Holding>& UnitMaker::listed(const oUnits& unit) const {
    static const std::vector<Holding> nothing;
    for (const std::string& key :
         {unit.nationality + " " + unit.unittype, unit.affiliation + " " + unit.unittype,
          unit.affiliation + " " + unit.echelon}) {
        const auto found = holdings.find(key);
        if (found != holdings.end()) return found->second;
    }
    return nothing;
}

bool UnitMaker::is_guards(const oUnits& unit) const {
    if (holds(unit.name, "Guards")) return true;
    const auto headquarters = program.campaign.colUnits->find(unit.parent_ID);
    return headquarters && is_guards(*headquarters);
}

std::string UnitMaker::experience(const oUnits& unit) const {
    if (holds(unit.unittype, "Security") || holds(unit.unittype, "Construction")) return "Conscript";
    if (holds(unit.unittype, "Alarm")) return "Green";
    if (unit.nationality == "German" || is_guards(unit)) return "Veteran";
    if (unit.nationality == "Italian") return "Regular";
    return program.campaign.colUnits.count() % 3 == 0 ? "Regular" : "Green";
}

void UnitMaker::add_holdings(oUnits& unit) {
    const int side = unit.affiliation == "Allied" ? 0 : 1;
    const std::string skill = experience(unit);
    for (const Holding& holding : listed(unit)) {
        const std::size_t before = unit.force_elements.count();
        const auto& catalogue = *program.campaign.colForceElements;
        for (const auto& element : catalogue) {
            if (element->affiliation != side || element->description != holding.element) continue;
            auto held = std::make_shared<oUnitForceElements>();
            held->ID = new_guid(program.platform);
            held->Index = element->ID;
            held->quantity = static_cast<std::int16_t>(holding.quantity);
            held->experience = skill;
            // A tenth of a load, in rounds, for a squad: the sums of a whole army still fit 16 bits.
            held->ammo = std::min<std::int16_t>(element->max_ammo, 120);
            held->FireFanAngle = static_cast<std::int16_t>(side == 0 ? 215 : 35);
            held->KIA = static_cast<std::int16_t>(program.campaign.colUnits.count() % 4 == 0 ? 2 : 0);
            held->MIA = static_cast<std::int16_t>(program.campaign.colUnits.count() % 9 == 0 ? 1 : 0);
            unit.force_elements->add(held, held->ID);
        }
        if (unit.force_elements.count() == before)
            throw std::runtime_error("no such element: " + holding.element);
    }
}
