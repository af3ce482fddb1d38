#include "annotation/draw_polygons.h"

#include "core/unit_place.h"

#include <algorithm>

namespace {

/// The note stands about the middle of the box around the corners, by a letter width of five pixels.
Point note_place(const std::vector<Point>& corners, const std::string& note) {
    const auto [left, right] = std::minmax_element(corners.begin(), corners.end(),
                                                   [](const Point& a, const Point& b) { return a.x < b.x; });
    const auto [top, bottom] = std::minmax_element(corners.begin(), corners.end(),
                                                   [](const Point& a, const Point& b) { return a.y < b.y; });
    const double note_width = static_cast<double>(note.size()) * 5;
    return {left->x + (right->x - left->x) / 2 - note_width / 2, top->y + (bottom->y - top->y) / 2 - 5};
}

void draw_polygon(Surface& map, const oPolygons& polygon) {
    if (polygon.coordinates.count() < 3) return;
    std::vector<Point> corners;
    for (const auto& vertex : polygon.coordinates) corners.push_back(place_of(*vertex));
    map.pen.DrawMode = polygon.drawmode == 9 ? 9 : 13;
    map.pen.FillStyle = 0;
    map.pen.FillColor = polygon.fillcolor;
    map.pen.ForeColor = polygon.bordercolor;
    map.pen.DrawWidth = polygon.borderwidth;
    map.polygon(corners);
    if (polygon.notes.empty()) return;
    map.pen.ForeColor = polygon.fontcolor;
    map.print(note_place(corners, polygon.notes), polygon.notes);
}

} // namespace

bool polygon_is_being_drawn(const Program& program) {
    const auto& polygon = program.campaign.curPolygon;
    return program.main.drawing_polygon && polygon && polygon->coordinates.count() > 1;
}

void draw_polygon_being_drawn(Program& program, Painting& painting) {
    painting.map.pen.ForeColor = program.main.picPolygonBordercolor.back_colour;
    painting.map.pen.DrawWidth = program.main.scrlPolygonBorderthickness.value;
    draw_path(painting.map, program.campaign.curPolygon->coordinates);
    painting.map.pen.DrawWidth = 1;
    painting.map.pen.ForeColor = 0;
}

bool polygons_are_shown(const Program& program) { return program.campaign.gDispPolygons; }

void draw_polygons(Program& program, Painting& painting) {
    for (const auto& polygon : program.campaign.colPolygons) draw_polygon(painting.map, *polygon);
}
