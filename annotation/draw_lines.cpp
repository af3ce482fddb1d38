#include "annotation/draw_lines.h"

#include "annotation/boundary.h"
#include "core/unit_place.h"

namespace {

/// The drawing style of a line; styles that old files hold and nobody can choose are solid.
int draw_style(const oLines& line) {
    return line.linestyle >= 1 && line.linestyle <= 5 ? line.linestyle - 1 : 0;
}

/// Where the vertices lie, nothing when they make no line.
const Bounds& line_bounds(const oLines& line) {
    return line.bounds.get(
        [&] { return line.colCoords.count() < 2 ? Bounds::nothing() : box_of(line.colCoords); });
}

/// What a line can touch between two places, or in a box around several. A boundary's halves follow a heading
/// of whole degrees, so that they stray from a long segment.
Bounds reach_of_line(const Bounds& ends, int width) {
    constexpr double sign = 40;
    constexpr double straying = 0.02;
    const double length = ends.right - ends.left + ends.bottom - ends.top;
    return ends.grown_by(sign + straying * length + width);
}

void draw_boundary(Surface& map, const oLines& line) {
    Point last = place_of(*line.colCoords->at(1));
    bool first = true;
    for (const auto& vertex : line.colCoords) {
        const Point here = place_of(*vertex);
        if (!first && map.wants(reach_of_line(bounds_of(last, here), line.linewidth))) {
            const std::vector<Point> strokes = boundary_strokes(last, here, line.boundry_size);
            for (std::size_t i = 0; i + 1 < strokes.size(); i += 2) map.line(strokes[i], strokes[i + 1]);
        }
        first = false;
        last = here;
    }
}

void draw_line(Surface& map, const oLines& line) {
    if (line.is_boundry)
        draw_boundary(map, line);
    else
        draw_path(map, line.colCoords);
}

Point last_vertex(const oLines* line) {
    return line == nullptr ? Point{} : place_of(*line->colCoords->at(line->colCoords.count()));
}

void draw_arrowhead(Surface& map, const oLines& line, Point tip) {
    map.pen.DrawStyle = 0;
    map.line({static_cast<double>(line.arrow1_x), static_cast<double>(line.arrow1_y)}, tip);
    map.line({static_cast<double>(line.arrow2_x), static_cast<double>(line.arrow2_y)}, tip);
}

std::vector<OverviewLines::Line> lines_to_show(const Program& program) {
    std::vector<OverviewLines::Line> shown;
    shown.reserve(program.campaign.colLines.count());
    for (const auto& line : program.campaign.colLines)
        if (!line_bounds(*line).is_nothing())
            shown.push_back({line.get(), line->linecolor, draw_style(*line)});
    return shown;
}

std::shared_ptr<const DrawingList> drawn_small(const OverviewLines::Source& source) {
    auto overview = std::make_shared<DrawingList>();
    overview->pen = source.pen;
    for (const auto& [line, colour, style] : source.lines) {
        overview->pen.ForeColor = colour;
        overview->pen.DrawStyle = style;
        overview->pen.DrawWidth = 1;
        overview->scratch.clear();
        for (const auto& vertex : line->colCoords)
            overview->scratch.push_back({vertex->x_cor * source.ratio, vertex->y_cor * source.ratio});
        overview->path(overview->scratch);
    }
    return overview;
}

} // namespace

bool there_are_lines(const Program& program) { return !program.campaign.colLines.empty(); }

void draw_lines(Program& program, Painting& painting) {
    Surface& map = painting.map;
    const bool last_is_open = program.main.drawing_lines && !program.main.line_ended;
    std::size_t position = 0;
    const oLines* last_plain = nullptr; // an arrow on a boundary ends where this one does
    for (const auto& line : program.campaign.colLines) {
        ++position;
        const Bounds& bounds = line_bounds(*line);
        if (bounds.is_nothing()) continue;
        map.pen.ForeColor = line->linecolor;
        map.pen.DrawStyle = draw_style(*line);
        map.pen.DrawWidth = line->linewidth;
        if (map.wants(reach_of_line(bounds, line->linewidth))) draw_line(map, *line);
        if (!line->is_boundry) last_plain = line.get();
        const bool is_last = position == program.campaign.colLines.count();
        if (line->is_arrow && !(is_last && last_is_open)) draw_arrowhead(map, *line, last_vertex(last_plain));
    }
}

void draw_overview_lines(const Program& program, Painting& painting) {
    const double ratio = program.main.picOverviewmap.scale_width() / program.main.picMap.scale_width();
    OverviewLines& kept = painting.overview_lines;
    OverviewLines::Source source{lines_to_show(program), CornerChanges::count(), ratio,
                                 painting.overview.pen};
    if (!kept.figures || !(source == kept.source)) {
        auto drawn = drawn_small(source);
        kept.source = std::move(source);
        // Most changes of corners are no change of these: who shows the old list need not paint again.
        if (!kept.figures || !kept.figures->same_figures(*drawn) || kept.figures->pen != drawn->pen)
            kept.figures = std::move(drawn);
    }
    painting.overview.insert(kept.figures);
}
