#include "annotation/draw_lines.h"

#include "annotation/boundary.h"
#include "core/unit_place.h"

#include <cmath>

namespace {

/// The drawing style of a line; styles that old files hold and nobody can choose are solid.
int draw_style(const oLines& line) {
    return line.linestyle >= 1 && line.linestyle <= 5 ? line.linestyle - 1 : 0;
}

/// What a boundary can touch between two vertices. Its halves follow a heading of whole degrees, so that they
/// stray from a long segment.
Bounds boundary_bounds(Point from, Point to, int width) {
    constexpr double sign = 40;
    constexpr double straying = 0.02;
    const double length = std::abs(to.x - from.x) + std::abs(to.y - from.y);
    return bounds_of(from, to).grown_by(sign + straying * length + width);
}

void draw_boundary(Surface& map, const oLines& line) {
    Point last = place_of(*line.colCoords->at(1));
    bool first = true;
    for (const auto& vertex : line.colCoords) {
        const Point here = place_of(*vertex);
        if (!first && map.wants(boundary_bounds(last, here, line.linewidth))) {
            const std::vector<Point> strokes = boundary_strokes(last, here, line.boundry_size);
            for (std::size_t i = 0; i + 1 < strokes.size(); i += 2) map.line(strokes[i], strokes[i + 1]);
        }
        first = false;
        last = here;
    }
}

void draw_arrowhead(Surface& map, const oLines& line, Point tip) {
    map.pen.DrawStyle = 0;
    map.line({static_cast<double>(line.arrow1_x), static_cast<double>(line.arrow1_y)}, tip);
    map.line({static_cast<double>(line.arrow2_x), static_cast<double>(line.arrow2_y)}, tip);
}

} // namespace

bool there_are_lines(const Program& program) { return !program.campaign.colLines.empty(); }

void draw_lines(Program& program, Painting& painting) {
    Surface& map = painting.map;
    const bool last_is_open = program.main.drawing_lines && !program.main.line_ended;
    std::size_t position = 0;
    Point last_vertex; // of the last plain line: an arrow on a boundary ends there
    for (const auto& line : program.campaign.colLines) {
        ++position;
        if (line->colCoords.count() < 2) continue;
        map.pen.ForeColor = line->linecolor;
        map.pen.DrawStyle = draw_style(*line);
        map.pen.DrawWidth = line->linewidth;
        if (line->is_boundry) {
            draw_boundary(map, *line);
        } else {
            draw_path(map, line->colCoords, [](const oCoordinates& vertex) { return place_of(vertex); });
            last_vertex = place_of(*line->colCoords->at(line->colCoords.count()));
        }
        const bool is_last = position == program.campaign.colLines.count();
        if (line->is_arrow && !(is_last && last_is_open)) draw_arrowhead(map, *line, last_vertex);
    }
}

void draw_overview_lines(const Program& program, Surface& overview) {
    const double ratio = program.main.picOverviewmap.scale_width() / program.main.picMap.scale_width();
    for (const auto& line : program.campaign.colLines) {
        if (line->colCoords.count() < 2) continue;
        overview.pen.ForeColor = line->linecolor;
        overview.pen.DrawStyle = draw_style(*line);
        overview.pen.DrawWidth = 1;
        draw_path(overview, line->colCoords, [&](const oCoordinates& vertex) {
            return Point{vertex.x_cor * ratio, vertex.y_cor * ratio};
        });
    }
}
