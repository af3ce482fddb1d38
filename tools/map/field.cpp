#include "tools/map/field.h"

#include <algorithm>

namespace {

double smooth(double t) { return t * t * (3 - 2 * t); }

QPointF catmull_rom(QPointF a, QPointF b, QPointF c, QPointF d, double t) {
    return 0.5 * ((2 * b) + (c - a) * t + (2 * a - 5 * b + 4 * c - d) * t * t +
                  (3 * b - a - 3 * c + d) * t * t * t);
}

} // namespace

double noise(double x, double y, double size, std::uint64_t seed) {
    const double fx = std::floor(x / size);
    const double fy = std::floor(y / size);
    const auto ix = static_cast<std::int64_t>(fx);
    const auto iy = static_cast<std::int64_t>(fy);
    const double tx = smooth(x / size - fx);
    const double ty = smooth(y / size - fy);
    const double upper = std::lerp(chance(ix, iy, seed), chance(ix + 1, iy, seed), tx);
    const double lower = std::lerp(chance(ix, iy + 1, seed), chance(ix + 1, iy + 1, seed), tx);
    return 2 * std::lerp(upper, lower, ty) - 1;
}

double Field::at(QPointF point) const {
    const double x = std::clamp(point.x() / spacing, 0.0, columns - 1.001);
    const double y = std::clamp(point.y() / spacing, 0.0, rows - 1.001);
    const int column = static_cast<int>(x);
    const int row = static_cast<int>(y);
    const double tx = x - column;
    const double ty = y - row;
    return std::lerp(std::lerp(node(column, row), node(column + 1, row), tx),
                     std::lerp(node(column, row + 1), node(column + 1, row + 1), tx), ty);
}

QPointF Field::slope(QPointF point) const {
    const double d = spacing;
    return {at(point - QPointF(d, 0)) - at(point + QPointF(d, 0)),
            at(point - QPointF(0, d)) - at(point + QPointF(0, d))};
}

std::vector<QPointF> smooth_curve(const std::vector<QPointF>& points, double step) {
    std::vector<QPointF> curve;
    const auto point = [&](std::ptrdiff_t i) {
        const auto last = static_cast<std::ptrdiff_t>(points.size()) - 1;
        return points[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(i, 0, last))];
    };
    for (std::ptrdiff_t i = 0; i + 1 < static_cast<std::ptrdiff_t>(points.size()); ++i) {
        const QPointF way = point(i + 1) - point(i);
        const int parts = std::max(1, static_cast<int>(std::hypot(way.x(), way.y()) / step));
        for (int part = 0; part < parts; ++part)
            curve.push_back(catmull_rom(point(i - 1), point(i), point(i + 1), point(i + 2),
                                        static_cast<double>(part) / parts));
    }
    curve.push_back(points.back());
    return curve;
}

Nearest nearest_on(const std::vector<QPointF>& curve, QPointF point) {
    Nearest best{1e9, 0};
    for (std::size_t i = 0; i < curve.size(); ++i) {
        const double distance = std::hypot(curve[i].x() - point.x(), curve[i].y() - point.y());
        if (distance < best.distance)
            best = {distance, static_cast<double>(i) / static_cast<double>(curve.size() - 1)};
    }
    return best;
}
