#include "operations/draw_ranges.h"

#include "core/unit_place.h"

#include <string>

namespace {

void print_distance(Surface& map, Point centre, double radius, const std::string& text) {
    map.print({centre.x - 15, centre.y - radius + 1}, text);
    map.print({centre.x + radius - 35, centre.y - 10}, text);
    map.print({centre.x - 15, centre.y + radius - 17}, text);
    map.print({centre.x - radius + 4, centre.y - 10}, text);
}

void draw_range_circles(Surface& map, Point centre) {
    constexpr int rings = 10;
    constexpr int pixels_per_ring = 150;
    map.pen.FontSize = 10;
    map.pen.FontBold = true;
    map.pen.DrawWidth = 2;
    map.pen.FillStyle = 0;
    map.pen.DrawMode = 13;
    map.pen.FillColor = 255;
    map.pen.ForeColor = 0;
    map.circle(centre, 3);
    map.pen.FillStyle = 1;
    for (int k = 1; k <= rings; ++k) {
        map.circle(centre, k * pixels_per_ring);
        print_distance(map, centre, k * pixels_per_ring, std::to_string(k) + " km");
    }
    map.pen.FontBold = false;
}

} // namespace

bool range_circles_are_shown(const Program& program) {
    return program.main.showing_range_circles && !program.campaign.colCirclePoints.empty();
}

void draw_all_range_circles(Program& program, Painting& painting) {
    for (const auto& centre : program.campaign.colCirclePoints)
        draw_range_circles(painting.map, place_of(*centre));
}

bool path_is_measured(const Program& program) {
    return program.main.checking_path_range && program.campaign.colPathPoints.count() > 1;
}

void draw_measured_path(Program& program, Painting& painting) {
    painting.map.pen.DrawWidth = 2;
    painting.map.pen.ForeColor = 0;
    draw_path(painting.map, program.campaign.colPathPoints);
}
