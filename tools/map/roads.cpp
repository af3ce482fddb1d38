#include "tools/map/roads.h"

#include <algorithm>
#include <array>
#include <functional>
#include <numbers>
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

/// From the one point over nodes of the grid to the other, the far end first.
std::vector<QPointF> cheapest_way(const Grid& grid, QPointF from, QPointF to,
                                  const std::vector<double>& trodden) {
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
         n = before[static_cast<std::size_t>(n)])
        way.push_back(grid.point(n));
    way.push_back(from);
    return way;
}

/// The way as a road runs it: the corners of the grid are gone. Corners lie evenly, or the curve would curl.
std::vector<QPointF> rounded(const std::vector<QPointF>& way) {
    constexpr std::size_t apart = 3;
    std::vector<QPointF> thinned{way.front()};
    for (std::size_t i = apart; i + apart / 2 + 1 < way.size(); i += apart) thinned.push_back(way[i]);
    thinned.push_back(way.back());
    return smooth_curve(thinned, 8);
}

/// The point of the roads that is nearest, itself when none is near.
QPointF joined(const std::vector<Road>& roads, QPointF point) {
    constexpr double reach = 60;
    QPointF best = point;
    double least = reach;
    for (const Road& road : roads)
        for (const QPointF& other : road.line) {
            const double apart = std::hypot(other.x() - point.x(), other.y() - point.y());
            if (apart >= least) continue;
            least = apart;
            best = other;
        }
    return best;
}

/// The country's roads while they are being built.
struct Building {
    const Grid grid;
    std::vector<double>
        trodden; // by node: the factor of what a road costs there, below 1 where one is already
    std::vector<Road> roads;

    explicit Building(const Terrain& terrain)
        : grid(terrain),
          trodden(static_cast<std::size_t>(grid.columns) * static_cast<std::size_t>(grid.rows), 1) {}

    /// Builds what is not there yet of the way from one place to another.
    void build(RoadClass kind, QPointF from, QPointF to) {
        const std::vector<QPointF> way = cheapest_way(grid, from, to, trodden);
        std::vector<QPointF> piece;
        std::vector<Road> pieces;
        const auto finish = [&] {
            if (piece.size() > 1) pieces.push_back({kind, rounded(piece)});
            piece.clear();
        };
        for (const QPointF& point : way) {
            const bool is_there = cost_of(point) < 1;
            if (!is_there) {
                piece.push_back(point);
                continue;
            }
            if (piece.size() > 1) piece.push_back(joined(roads, point)); // else it ran along a road
            finish();
            piece.push_back(joined(roads, point));
        }
        finish();
        for (const QPointF& point : way) cost_of(point) = 0.5;
        roads.insert(roads.end(), pieces.begin(), pieces.end());
    }

    double& cost_of(QPointF point) { return trodden[static_cast<std::size_t>(grid.node(point))]; }
};

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

QPointF on_dry_ground(const Terrain& terrain, QPointF point) {
    constexpr double from_water = 45;
    constexpr double step = 70;
    QPointF best = point;
    for (int i = 0; i < 16 && terrain.river_distance.at(point) < from_water; ++i) {
        const double angle = i * std::numbers::pi / 8;
        const QPointF candidate = point + QPointF(step * std::cos(angle), step * std::sin(angle));
        if (terrain.river_distance.at(candidate) > terrain.river_distance.at(best)) best = candidate;
    }
    return best;
}

std::vector<Road> build_roads(const Terrain& terrain, const std::vector<Place>& places) {
    Building country(terrain);
    // Roads lead on beyond the sheet.
    for (const Place& place : places) {
        const QPointF at = on_dry_ground(terrain, place.point);
        if (place.name == "Tichoborsk") country.build(RoadClass::highway, at, {0, at.y() - 120});
        if (place.name == "Suchoj Shernowez")
            country.build(RoadClass::improved, at, {static_cast<double>(terrain.width), at.y() - 200});
        if (place.name == "Bolschaja Kruschina")
            country.build(RoadClass::highway, at, {at.x() - 500, static_cast<double>(terrain.height)});
        if (place.name == "Lerchenau") country.build(RoadClass::country, at, {at.x() + 90, 0});
    }
    for (const auto& [a, b] : links(places))
        country.build(class_between(places[a], places[b]), on_dry_ground(terrain, places[a].point),
                      on_dry_ground(terrain, places[b].point));
    return country.roads;
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
