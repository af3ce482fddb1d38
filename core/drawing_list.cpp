#include "core/drawing_list.h"

namespace {

Bounds around(const std::vector<Point>& points) {
    Bounds all = bounds_of(points.front());
    for (const Point& point : points) all = all.with(bounds_of(point));
    return all;
}

} // namespace

DrawingList::Figure* DrawingList::keep(Kind kind, const Bounds& bounds) {
    if (!wants(bounds)) return nullptr;
    drawn.push_back({kind, pen, {}, 0, 0, 0, {}, bounds});
    return &drawn.back();
}

DrawingList::Figure* DrawingList::keep_round(Kind kind, Point centre, double radius) {
    Figure* const figure = keep(kind, bounds_of(centre).grown_by(radius + pen.DrawWidth + 1));
    if (figure == nullptr) return nullptr;
    figure->points = {centre};
    figure->radius = radius;
    return figure;
}

void DrawingList::line(Point from, Point to) {
    Figure* const figure = keep(Kind::line, bounds_of(from, to).grown_by(pen.DrawWidth + 1));
    if (figure != nullptr) figure->points = {from, to};
}

void DrawingList::circle(Point centre, double radius) { keep_round(Kind::circle, centre, radius); }

void DrawingList::pie(Point centre, double radius, double start, double end) {
    Figure* const figure = keep_round(Kind::pie, centre, radius);
    if (figure == nullptr) return;
    figure->start = start;
    figure->end = end;
}

void DrawingList::polygon(const std::vector<Point>& points) {
    if (points.empty()) return;
    Figure* const figure = keep(Kind::polygon, around(points).grown_by(pen.DrawWidth + 1));
    if (figure != nullptr) figure->points = points;
}

void DrawingList::print(Point at, const std::string& text) {
    Figure* const figure = keep(Kind::print, text_bounds(at, text.size(), pen.FontSize));
    if (figure == nullptr) return;
    figure->points = {at};
    figure->text = text;
}

void DrawingList::replay(Surface& target, const Bounds& wanted) const {
    for (const Figure& figure : drawn) {
        if (!figure.bounds.meets(wanted)) continue;
        target.pen = figure.pen;
        switch (figure.kind) {
        case Kind::line:
            target.line(figure.points[0], figure.points[1]);
            break;
        case Kind::circle:
            target.circle(figure.points[0], figure.radius);
            break;
        case Kind::pie:
            target.pie(figure.points[0], figure.radius, figure.start, figure.end);
            break;
        case Kind::polygon:
            target.polygon(figure.points);
            break;
        case Kind::print:
            target.print(figure.points[0], figure.text);
            break;
        }
    }
}
