#include "core/drawing_list.h"

#include <algorithm>
#include <utility>

namespace {

Bounds around(const std::vector<Point>& points, double margin) {
    Bounds all{points.front().x, points.front().y, points.front().x, points.front().y};
    for (const Point& point : points) {
        all.left = std::min(all.left, point.x);
        all.top = std::min(all.top, point.y);
        all.right = std::max(all.right, point.x);
        all.bottom = std::max(all.bottom, point.y);
    }
    return {all.left - margin, all.top - margin, all.right + margin, all.bottom + margin};
}

/// A text's size is the font's affair; this is an outer bound of it for any common font.
Bounds around_text(Point at, const std::string& text, int font_size) {
    const double em = 2.0 * font_size;
    const auto lines = 1 + std::count(text.begin(), text.end(), '\n');
    return {at.x - em, at.y - em, at.x + em * static_cast<double>(text.size() + 1),
            at.y + em * static_cast<double>(lines + 1)};
}

} // namespace

void DrawingList::keep(Figure figure) {
    if (figure.points.empty()) return;
    figure.bounds = figure.kind == Kind::print
                        ? around_text(figure.points.front(), figure.text, figure.pen.FontSize)
                        : around(figure.points, figure.radius + figure.pen.DrawWidth + 1);
    drawn.push_back(std::move(figure));
}

void DrawingList::line(Point from, Point to) { keep({Kind::line, pen, {from, to}, 0, 0, 0, {}, {}}); }

void DrawingList::circle(Point centre, double radius) {
    keep({Kind::circle, pen, {centre}, radius, 0, 0, {}, {}});
}

void DrawingList::pie(Point centre, double radius, double start, double end) {
    keep({Kind::pie, pen, {centre}, radius, start, end, {}, {}});
}

void DrawingList::polygon(const std::vector<Point>& points) {
    keep({Kind::polygon, pen, points, 0, 0, 0, {}, {}});
}

void DrawingList::print(Point at, const std::string& text) {
    keep({Kind::print, pen, {at}, 0, 0, 0, text, {}});
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
