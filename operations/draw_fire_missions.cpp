#include "operations/draw_fire_missions.h"

#include <algorithm>
#include <array>

namespace {

enum class Sign : std::uint8_t { area, target, large_target, dot };

struct SignRow {
    int missionclass;
    int missiontype;
    std::int32_t fill;
    std::int32_t pen;
    Sign sign;
};

constexpr std::array<SignRow, 7> signs{{{0, 0, 192, 192, Sign::area},
                                        {0, 1, 0x80FF, 0x40C0, Sign::area},
                                        {0, 2, 0xFFFF, 0xC0C0, Sign::area},
                                        {0, 3, 0xFF00, 0x8000, Sign::target},
                                        {0, 4, 255, 192, Sign::target},
                                        {1, 0, 0xFF0000, 0xC00000, Sign::large_target},
                                        {1, 1, 0xC00000, 0xFF0000, Sign::dot}}};

constexpr int line_pattern = 4;

/// The size of a pattern in metres.
int pattern_size(const oFireMission& mission) {
    constexpr std::array<int, 4> radii{100, 200, 400, 1000};
    if (mission.pattern == line_pattern) return mission.line_length;
    const bool known = mission.pattern >= 0 && mission.pattern < line_pattern;
    return known ? radii[static_cast<std::size_t>(mission.pattern)] : 0;
}

void draw_cross(Surface& map, Point at, double half_length) {
    map.pen.DrawWidth = 1;
    map.line({at.x - half_length, at.y}, {at.x + half_length, at.y});
    map.line({at.x, at.y - half_length}, {at.x, at.y + half_length});
}

void draw_pattern(Surface& map, Point at, const oFireMission& mission) {
    const double d = pattern_size(mission) / 1000.0 * 150;
    if (mission.pattern == line_pattern) {
        map.pen.DrawWidth = 6;
        if (mission.line_angle == 0)
            map.line({at.x - d, at.y}, {at.x + d, at.y});
        else
            map.line({at.x, at.y - d}, {at.x, at.y + d});
        return;
    }
    map.pen.FillStyle = 1;
    map.pen.DrawWidth = 2;
    map.circle(at, d);
}

void draw_mission(Surface& map, const oFireMission& mission) {
    const auto* const row = std::find_if(signs.begin(), signs.end(), [&](const SignRow& candidate) {
        return candidate.missionclass == mission.missionclass && candidate.missiontype == mission.missiontype;
    });
    if (row == signs.end()) return;
    const Point at{static_cast<double>(mission.xcoord), static_cast<double>(mission.ycoord)};
    map.pen.DrawMode = 13;
    map.pen.FillStyle = 0;
    map.pen.FillColor = row->fill;
    map.pen.ForeColor = row->pen;
    map.circle(at, row->sign == Sign::large_target ? 8 : 6);
    if (row->sign == Sign::area) draw_pattern(map, at, mission);
    if (row->sign == Sign::target) draw_cross(map, at, 10);
    if (row->sign == Sign::large_target) draw_cross(map, at, 12);
    map.pen.FillColor = 0;
    map.pen.ForeColor = 0;
    map.pen.FillStyle = 1;
    map.pen.DrawWidth = 1;
}

} // namespace

bool fire_missions_are_shown(const Program& program) { return program.campaign.gDispFireMissions; }

void draw_fire_missions(Program& program, Painting& painting) {
    for (const auto& mission : program.campaign.colFireMissions) draw_mission(painting.map, *mission);
}
