#include "tools/map/roads.h"

#include <algorithm>
#include <array>
#include <functional>
#include <queue>

namespace {

constexpr int cell = 20; // pixels

struct Grid {
    explicit Grid(const Terrain& terrain)
        : columns(terrain.width / cell + 1), rows(terrain.height / cell + 1), terrain(terrain) {}

    int columns;
    int rows;
    const Terrain& terrain;

    int node(QPointF p) const {
        const auto x = static_cast<int>(std::lround(p.x() / cell));
        const auto y = static_cast<int>(std::lround(p.y() / cell));
        return std::clamp(y, 0, rows - 1) * columns + std::clamp(x, 0, columns - 1);
    }
    QPointF point(int n) const {
        const int row = n / columns;
        return QPointF(QPoint(n % columns, row) * cell);
    }
};

double step_cost(const Terrain& terrain, QPointF a, QPointF b) {
    const double length = std::hypot(a.x() - b.x(), a.y() - b.y());
    const double rise = std::abs(terrain.heights.at(a) - terrain.heights.at(b));
    const double water = terrain.river_distance.at(b) < 26 ? 420 : 0;
    const double wet = terrain.marsh.at(b) > 0 ? 2.5 : 0;
    const double wooded = terrain.woods.at(b) > 0 ? 0.6 : 0;
    const double roughness =
        0.35 * chance(static_cast<std::int64_t>(b.x()), static_cast<std::int64_t>(b.y()), 77);
    return length * (1 + wet + wooded + roughness) + 14 * rise + water;
}

std::vector<QPointF> cheapest_way(const Grid& grid, QPointF from, QPointF to, std::vector<double>& trodden) {
    const int start = grid.node(from);
    const int goal = grid.node(to);
    const auto size = static_cast<std::size_t>(grid.columns) * static_cast<std::size_t>(grid.rows);
    std::vector<double> cost(size, 1e18);
    std::vector<int> before(size, -1);
    using Entry = std::pair<double, int>;
    std::priority_queue<Entry, std::vector<Entry>, std::greater<>> open;
    cost[static_cast<std::size_t>(start)] = 0;
    open.emplace(0, start);
    while (!open.empty()) {
        const int here = open.top().second;
        open.pop();
        if (here == goal) break;
        const QPointF p = grid.point(here);
        for (int dy = -1; dy <= 1; ++dy)
            for (int dx = -1; dx <= 1; ++dx) {
                const int x = here % grid.columns + dx;
                const int y = here / grid.columns + dy;
                if ((dx == 0 && dy == 0) || x < 0 || y < 0 || x >= grid.columns || y >= grid.rows) continue;
                const auto next = static_cast<std::size_t>(y * grid.columns + x);
                const QPointF q = grid.point(static_cast<int>(next));
                // An existing road is followed rather than run beside.
                const double total =
                    cost[static_cast<std::size_t>(here)] + step_cost(grid.terrain, p, q) * trodden[next];
                if (total >= cost[next]) continue;
                cost[next] = total;
                before[next] = here;
                const double rest = 0.45 * std::hypot(q.x() - to.x(), q.y() - to.y());
                open.emplace(total + rest, static_cast<int>(next));
            }
    }
    std::vector<QPointF> way{to};
    for (int n = before[static_cast<std::size_t>(goal)]; n != -1 && n != start;
         n = before[static_cast<std::size_t>(n)]) {
        way.push_back(grid.point(n));
        trodden[static_cast<std::size_t>(n)] = 0.5;
    }
    way.push_back(from);
    std::vector<QPointF> thinned;
    for (std::size_t i = 0; i < way.size(); i += (i + 3 < way.size() && i > 0) ? 3 : 1)
        thinned.push_back(way[i]);
    return smooth_curve(thinned, 8);
}

RoadClass class_between(const Place& a, const Place& b) {
    const int fewer = std::min(a.population, b.population);
    if (a.is_farm() || b.is_farm() || fewer < 120) return RoadClass::track;
    if (fewer >= 1300) return RoadClass::highway;
    if (fewer >= 560) return RoadClass::improved;
    return RoadClass::country;
}

double apart(const Place& a, const Place& b) {
    return std::hypot(a.point.x() - b.point.x(), a.point.y() - b.point.y());
}

using Link = std::pair<std::size_t, std::size_t>;

/// Towns among each other, then every place to the nearest larger one and to its nearest neighbour.
std::vector<Link> links(const std::vector<Place>& places) {
    std::vector<Link> found;
    const auto add = [&](std::size_t a, std::size_t b) {
        const Link link = std::minmax(a, b);
        if (a != b && std::find(found.begin(), found.end(), link) == found.end()) found.push_back(link);
    };
    const auto nearest = [&](std::size_t of, const std::function<bool(const Place&)>& wanted) {
        std::size_t best = of;
        for (std::size_t i = 0; i < places.size(); ++i)
            if (i != of && wanted(places[i]) &&
                (best == of || apart(places[of], places[i]) < apart(places[of], places[best])))
                best = i;
        return best;
    };
    for (const int least : {1300, 560, 0})
        for (std::size_t i = 0; i < places.size(); ++i) {
            const int people = places[i].population;
            if (people < least) continue;
            add(i, nearest(i, [&](const Place& p) { return p.population > people; }));
            add(i, nearest(i, [&](const Place& p) { return p.population >= least; }));
        }
    std::stable_sort(found.begin(), found.end(), [&](const Link& a, const Link& b) {
        return class_between(places[a.first], places[a.second]) <
               class_between(places[b.first], places[b.second]);
    });
    return found;
}

} // namespace

std::vector<Road> build_roads(const Terrain& terrain, const std::vector<Place>& places) {
    const Grid grid(terrain);
    std::vector<double> trodden(static_cast<std::size_t>(grid.columns) * static_cast<std::size_t>(grid.rows),
                                1);
    std::vector<Road> roads;
    for (const auto& [a, b] : links(places))
        roads.push_back({class_between(places[a], places[b]),
                         cheapest_way(grid, places[a].point, places[b].point, trodden)});
    // Roads lead on beyond the sheet.
    const auto leave = [&](RoadClass kind, std::size_t place, QPointF edge) {
        roads.push_back({kind, cheapest_way(grid, places[place].point, edge, trodden)});
    };
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (places[i].name == "Tichoborsk") leave(RoadClass::highway, i, {0, places[i].point.y() - 120});
        if (places[i].name == "Suchoj Shernowez")
            leave(RoadClass::improved, i, {static_cast<double>(terrain.width), places[i].point.y() - 200});
        if (places[i].name == "Bolschaja Kruschina")
            leave(RoadClass::highway, i, {places[i].point.x() - 500, static_cast<double>(terrain.height)});
        if (places[i].name == "Lerchenau") leave(RoadClass::country, i, {places[i].point.x() + 90, 0});
    }
    return roads;
}

std::vector<QPointF> railway(int map_height) {
    constexpr std::array<std::pair<double, double>, 8> stops{{{-0.5, 26.9},
                                                              {2.6, 26.25},
                                                              {9.5, 23.9},
                                                              {15.72, 21.88},
                                                              {20.3, 24.80},
                                                              {27.7, 30.25},
                                                              {32.5, 33.6},
                                                              {37.2, 36.2}}};
    std::vector<QPointF> points;
    points.reserve(stops.size());
    for (const auto& [east, north] : stops) points.push_back(from_kilometres(east, north, map_height));
    return smooth_curve(points, 8);
}
