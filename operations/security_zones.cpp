#include "operations/security_zones.h"

#include "core/numbers.h"
#include "core/unit_place.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

using std::string_view;

constexpr std::array<string_view, 6> large_echelons{"Army",    "Corps",    "Division",
                                                    "Brigade", "Regiment", "Battalion"};
constexpr std::array<string_view, 4> small_echelons{"Platoon", "Squad", "Team", "Battery"};
constexpr std::array<string_view, 11> heavy_weapons{
    "Rocket", "Howitzer", "Cannon", "Artillery", "Mortar", "Flak", "AAA", "AA", "IG", "ATG", "AT"};
constexpr std::array<string_view, 7> no_weapons{"Observation", "Leader",   "Command", "Signal",
                                                "Column",      "Obstacle", "Armor"};

struct StatusRow {
    string_view op_status;
    ZoneRadii radii;
};

constexpr std::array<StatusRow, 11> line_unit_rows{{{"Deployed", {150, 100}},
                                                    {"Prepped for moving", {150, 50}},
                                                    {"Combat moving", {150, 75}},
                                                    {"Normal moving", {150, 25}},
                                                    {"Column moving", {150, 10}},
                                                    {"Attacking", {150, 100}},
                                                    {"Assaulting", {150, 125}},
                                                    {"Defensive", {150, 150}},
                                                    {"Disorganized", {150, 10}},
                                                    {"Building", {150, 25}},
                                                    {"Recon", {50, 150}}}};

template <std::size_t N> bool holds(const std::array<string_view, N>& words, string_view word) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

/// The 1-based places of the words in the text, 0 for one that is not in it, all bits put together.
template <std::size_t N> unsigned places(string_view text, const std::array<string_view, N>& words) {
    unsigned all = 0;
    for (const string_view word : words) {
        const std::size_t at = text.find(word);
        if (at != string_view::npos) all |= static_cast<unsigned>(at) + 1;
    }
    return all;
}

/// The bits of places, not truth values, decide: a type that holds both kinds of word can still be heavy.
/// Campaigns are played by zones that came out so.
bool has_heavy_weapons(string_view unittype) {
    return (places(unittype, heavy_weapons) & ~places(unittype, no_weapons)) != 0;
}

ZoneRadii line_unit_radii(string_view op_status) {
    const auto* const row =
        std::find_if(line_unit_rows.begin(), line_unit_rows.end(),
                     [&](const StatusRow& candidate) { return candidate.op_status == op_status; });
    return row == line_unit_rows.end() ? ZoneRadii{} : row->radii;
}

ZoneRadii small_line_unit_radii(string_view op_status) {
    return op_status == "Recon" ? ZoneRadii{50, 150} : ZoneRadii{50, 10};
}

void draw_zones(const Program& program, Surface& map, const oUnits& unit) {
    constexpr double widest = 303; // two kilometres and the pen
    const bool filled = program.campaign.gDispUSZFilled;
    const bool in_reach = map.wants(bounds_of(place_of(unit)).grown_by(widest));
    const ZoneRadii radii = in_reach ? zone_radii(unit) : ZoneRadii{};
    map.pen.DrawWidth = 2;
    map.pen.DrawMode = 9;
    map.pen.FillColor = unit.color;
    map.pen.ForeColor = filled ? 0 : unit.color;
    map.pen.FillStyle = filled ? 0 : 2;
    if (radii.zone_radius_1 != 0) map.circle(place_of(unit), zone_pixels(radii.zone_radius_1));
    map.pen.FillStyle = filled ? 0 : 7;
    if (radii.zone_radius_2 != 0) map.circle(place_of(unit), zone_pixels(radii.zone_radius_2));
}

} // namespace

ZoneRadii zone_radii(const oUnits& unit) {
    if (holds(large_echelons, unit.echelon)) return {150, 200};
    if (unit.order_id == "Rear echelon") return {150, 200};
    if (unit.order_id == "Supply column") return {150, 10};
    if (unit.order_id != "Line unit") return {};
    const bool small = holds(small_echelons, unit.echelon) && !has_heavy_weapons(unit.unittype);
    return small ? small_line_unit_radii(unit.op_status) : line_unit_radii(unit.op_status);
}

std::int16_t zone_pixels(int hundredths) { return to_int16(hundredths * 150 / 100.0); }

bool security_zones_are_shown(const Program& program) { return program.campaign.gDispUSZ; }

void draw_security_zones(Program& program, Painting& painting) {
    const Campaign& campaign = program.campaign;
    if (campaign.gDispUSZAll) {
        for (const auto& unit : campaign.colUnits) draw_zones(program, painting.map, *unit);
    } else if (program.main.picUnitInfo.visible && campaign.gDispUSZSelected && campaign.curUnit) {
        draw_zones(program, painting.map, *campaign.curUnit);
    }
}
