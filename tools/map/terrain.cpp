#include "tools/map/terrain.h"

#include "tools/map/places.h"

#include <algorithm>

namespace {

std::vector<QPointF> river(const std::vector<std::pair<double, double>>& fixed, int height, double swing,
                           std::uint64_t seed) {
    std::vector<QPointF> points;
    points.reserve(fixed.size());
    for (const auto& [east, north] : fixed) points.push_back(from_kilometres(east, north, height));
    std::vector<QPointF> curve = smooth_curve(points, 14);
    // Meanders between the fixed points, none at them: bridges stand there.
    for (QPointF& point : curve) {
        double calm = 1;
        for (const QPointF& at : points)
            calm = std::min(calm, std::hypot(point.x() - at.x(), point.y() - at.y()) / 260);
        const double bend = swing * calm;
        point += QPointF(bend * noise(point.x(), point.y(), 210, seed),
                         bend * noise(point.x(), point.y(), 190, seed + 1));
    }
    std::vector<QPointF> thinned;
    for (std::size_t i = 0; i < curve.size(); i += 3) thinned.push_back(curve[i]);
    thinned.push_back(curve.back());
    return smooth_curve(thinned, 7);
}

double ramp(double value, double from, double to) {
    const double t = std::clamp((value - from) / (to - from), 0.0, 1.0);
    return t * t * (3 - 2 * t);
}

/// How far down a river's course a place lies, 0 at its source and 1 at its end. By the straight line between
/// these: by the nearest bend the land would have steps where another bend becomes the nearest.
double downstream(const std::vector<QPointF>& river, QPointF p) {
    const QPointF course = river.back() - river.front();
    return QPointF::dotProduct(p - river.front(), course) / QPointF::dotProduct(course, course);
}

/// Whether water that came this way stands in a hollow by now and runs about in it.
bool turns_back(const std::vector<QPointF>& way, QPointF p) {
    constexpr std::size_t steps = 8;
    constexpr double room = 36;
    for (std::size_t i = 0; i + steps < way.size(); ++i)
        if (std::hypot(way[i].x() - p.x(), way[i].y() - p.y()) < room) return true;
    return false;
}

} // namespace

Terrain::Terrain(int map_width, int map_height)
    : width(map_width), height(map_height), tolva(river({{-0.5, 33.4},
                                                         {0, 33},
                                                         {6.2, 30.4},
                                                         {13.4, 26.1},
                                                         {15.7, 22.0},
                                                         {21, 18.5},
                                                         {26.5, 14.2},
                                                         {31, 10},
                                                         {36, 7.4},
                                                         {37.5, 6.6}},
                                                        map_height, 80, 11)),
      ozimka(river({{37.2, 22.9}, {36, 22.4}, {31.2, 20.6}, {28.8, 19.4}, {25.6, 17.7}, {23.4, 16.7}},
                   map_height, 50, 23)),
      heights(map_width, map_height), river_distance(map_width, map_height), woods(map_width, map_height),
      marsh(map_width, map_height) {
    shape_heights();
    cut_ravines();
    grow_woods_and_marsh();
}

void Terrain::shape_heights() {
    for (int row = 0; row < heights.rows; ++row)
        for (int column = 0; column < heights.columns; ++column) {
            const QPointF p(column * Field::spacing, row * Field::spacing);
            const Nearest main = nearest_on(tolva, p);
            const Nearest side = nearest_on(ozimka, p);
            const double level_main = 112 - 14 * downstream(tolva, p);
            const double level_side = 117 - 13 * downstream(ozimka, p);
            const double distance = std::min(main.distance, side.distance);
            const double blend = std::clamp((side.distance - main.distance) / 600 + 0.5, 0.0, 1.0);
            const double level = std::lerp(level_side, level_main, blend);
            // The right bank is high and near, the left one low and far, as on the rivers of the steppe.
            const double right_of_main = (0.55 * p.x() - 0.6 * p.y()) / 9000;
            const double right_of_side = (0.4 * p.x() + 0.6 * p.y()) / 9000;
            const double bank = noise(p.x(), p.y(), 900, 3) + std::lerp(right_of_side, right_of_main, blend);
            const double reach = 330 + 170 * std::clamp(bank, -1.0, 1.0);
            const double valley = 48 * ramp(distance, 50, 50 + reach * 2.4) + distance / 150 * 1.3;
            const double away = ramp(distance, 90, 700);
            const double hills = 24 * noise(p.x(), p.y(), 1100, 5) + 15 * noise(p.x(), p.y(), 470, 6) +
                                 5 * noise(p.x(), p.y(), 210, 7) + 1.2 * noise(p.x(), p.y(), 95, 8);
            heights.node(column, row) = level + valley + away * hills;
            river_distance.node(column, row) = distance;
        }
}

void Terrain::cut_ravines() {
    const Field before = heights;
    for (int gy = 0; gy * 520 < height; ++gy)
        for (int gx = 0; gx * 520 < width; ++gx) {
            QPointF p(gx * 520 + 520 * chance(gx, gy, 31), gy * 520 + 520 * chance(gx, gy, 32));
            const double far = river_distance.at(p);
            if (far < 260 || far > 1500 || chance(gx, gy, 33) < 0.35) continue;
            std::vector<QPointF> way;
            QPointF course(0, 0);
            for (int step = 0; step < 400 && river_distance.at(p) > 28 && !turns_back(way, p); ++step) {
                way.push_back(p);
                const QPointF down = before.slope(p);
                const double length = std::hypot(down.x(), down.y());
                if (length < 0.02) break;
                course = 0.6 * course + 0.4 * (down / length);
                const double pace = std::max(0.2, std::hypot(course.x(), course.y()));
                p += course / pace * 9;
                if (p.x() < 5 || p.y() < 5 || p.x() > width - 5 || p.y() > height - 5) break;
            }
            if (way.size() < 35) continue;
            std::vector<QPointF> thinned;
            for (std::size_t i = 0; i < way.size(); i += 6) thinned.push_back(way[i]);
            ravines.push_back(smooth_curve(thinned, 6));
        }
    for (int row = 0; row < heights.rows; ++row)
        for (int column = 0; column < heights.columns; ++column) {
            const QPointF p(column * Field::spacing, row * Field::spacing);
            double cut = 0;
            for (const auto& ravine : ravines) {
                const QPointF apart = ravine[ravine.size() / 2] - p;
                if (std::hypot(apart.x(), apart.y()) > static_cast<double>(ravine.size()) * 6 + 120) continue;
                const Nearest nearest = nearest_on(ravine, p);
                const double depth =
                    9 * ramp(nearest.along, 0, 0.35) * (1 - 0.7 * ramp(nearest.along, 0.75, 1));
                cut = std::max(cut, depth * (1 - ramp(nearest.distance, 6, 95)));
            }
            heights.node(column, row) -= cut;
        }
}

void Terrain::grow_woods_and_marsh() {
    for (int row = 0; row < heights.rows; ++row)
        for (int column = 0; column < heights.columns; ++column) {
            const QPointF p(column * Field::spacing, row * Field::spacing);
            const double distance = river_distance.at(p);
            const QPointF down = heights.slope(p);
            const double north_slope = std::clamp(-down.y() / 3, -0.4, 0.5);
            const double flood_plain = ramp(distance, 25, 60) * (1 - ramp(distance, 120, 330));
            woods.node(column, row) = noise(p.x(), p.y(), 330, 41) * 0.75 +
                                      noise(p.x(), p.y(), 120, 42) * 0.3 + north_slope + 0.35 * flood_plain -
                                      0.62;
            const double flat = 1 - std::min(1.0, std::hypot(down.x(), down.y()) / 0.9);
            marsh.node(column, row) =
                flood_plain * flat + 0.6 * noise(p.x(), p.y(), 260, 43) - 0.72 - (distance < 24 ? 1 : 0);
        }
}
