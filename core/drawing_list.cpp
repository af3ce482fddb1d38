#include "core/drawing_list.h"

#include <array>

namespace {

Bounds around(std::span<const Point> points) {
    Bounds all = bounds_of(points.front());
    for (const Point& point : points) all = all.with(bounds_of(point));
    return all;
}

double margin(const Pen& pen) { return pen.DrawWidth + 1; }

/// Takes each figure down as it comes.
class Figures : public Surface {
  public:
    using Kind = DrawingList::Kind;

    void line(Point from, Point to) override { taken.push_back({Kind::line, pen, {from, to}, 0, 0, 0, {}}); }
    void circle(Point centre, double radius) override {
        taken.push_back({Kind::circle, pen, {centre}, radius, 0, 0, {}});
    }
    void pie(Point centre, double radius, double start, double end) override {
        taken.push_back({Kind::pie, pen, {centre}, radius, start, end, {}});
    }
    void polygon(const std::vector<Point>& points) override {
        taken.push_back({Kind::polygon, pen, points, 0, 0, 0, {}});
    }
    void print(Point at, const std::string& text) override {
        taken.push_back({Kind::print, pen, {at}, 0, 0, 0, text});
    }

    std::vector<DrawingList::Figure> taken;
};

} // namespace

void DrawingList::keep(Kind kind, std::span<const Point> its_points, std::size_t count,
                       const std::string& text) {
    if (pens.empty() || !(pens.back() == pen)) pens.push_back(pen);
    const Entry entry{kind, static_cast<std::uint32_t>(pens.size() - 1),
                      static_cast<std::uint32_t>(points.size()), static_cast<std::uint32_t>(count),
                      static_cast<std::uint32_t>(letters.size())};
    points.insert(points.end(), its_points.begin(), its_points.end());
    letters += text;
    entries.push_back(entry); // last: when memory runs out there is none without its points
}

void DrawingList::line(Point from, Point to) {
    if (!wants(bounds_of(from, to).grown_by(margin(pen)))) return;
    keep(Kind::line, std::array{from, to}, 2);
}

void DrawingList::path(const std::vector<Point>& corners) {
    if (corners.size() < 2 || !wants(around(corners).grown_by(margin(pen)))) return;
    keep(Kind::line, corners, corners.size());
}

void DrawingList::circle(Point centre, double radius) {
    if (!wants(bounds_of(centre).grown_by(radius + margin(pen)))) return;
    keep(Kind::circle, std::array{centre, Point{radius, 0}}, 1);
}

void DrawingList::pie(Point centre, double radius, double start, double end) {
    if (!wants(bounds_of(centre).grown_by(radius + margin(pen)))) return;
    keep(Kind::pie, std::array{centre, Point{radius, 0}, Point{start, end}}, 1);
}

void DrawingList::polygon(const std::vector<Point>& corners) {
    if (corners.empty() || !wants(around(corners).grown_by(margin(pen)))) return;
    keep(Kind::polygon, corners, corners.size());
}

void DrawingList::print(Point at, const std::string& text) {
    if (!wants(text_bounds(at, text, pen.FontSize))) return;
    keep(Kind::print, std::array{at}, text.size(), text);
}

void DrawingList::clear() {
    entries.clear();
    pens.clear();
    points.clear();
    letters.clear();
    inserted.clear();
}

void DrawingList::insert(std::shared_ptr<const DrawingList> list) {
    pen = list->pen;
    inserted.push_back({entries.size(), std::move(list)});
}

std::vector<DrawingList::Figure> DrawingList::figures() const {
    Figures all;
    replay(all);
    return all.taken;
}

bool DrawingList::same_figures(const DrawingList& other) const {
    return entries == other.entries && points == other.points && pens == other.pens &&
           letters == other.letters && inserted == other.inserted;
}

Bounds DrawingList::bounds_of_entry(const Entry& entry) const {
    const Point at = points[entry.first];
    const Pen& its_pen = pens[entry.pen];
    switch (entry.kind) {
    case Kind::circle:
    case Kind::pie:
        return bounds_of(at).grown_by(points[entry.first + 1].x + margin(its_pen));
    case Kind::print:
        return text_bounds(at, {&letters[entry.first_letter], entry.count}, its_pen.FontSize);
    default:
        return around({&points[entry.first], entry.count}).grown_by(margin(its_pen));
    }
}

void DrawingList::draw(const Entry& entry, Surface& target) const {
    const Point* const at = &points[entry.first];
    switch (entry.kind) {
    case Kind::line:
        for (std::uint32_t i = 1; i < entry.count; ++i) target.line(at[i - 1], at[i]);
        break;
    case Kind::circle:
        target.circle(at[0], at[1].x);
        break;
    case Kind::pie:
        target.pie(at[0], at[1].x, at[2].x, at[2].y);
        break;
    case Kind::polygon:
        target.polygon({at, at + entry.count});
        break;
    case Kind::print:
        target.print(at[0], letters.substr(entry.first_letter, entry.count));
        break;
    }
}

void DrawingList::replay(Surface& target) const {
    auto next = inserted.begin();
    for (std::size_t i = 0; i <= entries.size(); ++i) {
        for (; next != inserted.end() && next->before == i; ++next) next->list->replay(target);
        if (i == entries.size() || !target.wants(bounds_of_entry(entries[i]))) continue;
        target.pen = pens[entries[i].pen];
        draw(entries[i], target);
    }
}
