#include "core/dashes.h"

#include <array>
#include <cmath>
#include <optional>

namespace {

constexpr std::array<double, 2> dash{18, 6};
constexpr std::array<double, 2> dot{3, 3};
constexpr std::array<double, 4> dash_dot{9, 6, 3, 6};
constexpr std::array<double, 6> dash_dot_dot{9, 3, 3, 3, 3, 3};

/// A part of a line, as distances from its start.
struct Part {
    double enter;
    double leave;
};

/// Cuts the part to where a coordinate that starts at `start` and grows by `step` is between two values.
void cut(Part& part, double start, double step, double low, double high) {
    if (step == 0) {
        if (start < low || start > high) part.leave = -1;
        return;
    }
    const double one = (low - start) / step;
    const double other = (high - start) / step;
    part.enter = std::max(part.enter, std::min(one, other));
    part.leave = std::min(part.leave, std::max(one, other));
}

} // namespace

std::span<const double> dash_pattern(int style) {
    switch (style) {
    case 1:
        return dash;
    case 2:
        return dot;
    case 3:
        return dash_dot;
    case 4:
        return dash_dot_dot;
    default:
        return {};
    }
}

std::vector<Point> dashes(Point from, Point to, int style, const Bounds& within) {
    const std::span<const double> lengths = dash_pattern(style);
    const double length = std::hypot(to.x - from.x, to.y - from.y);
    if (lengths.empty() || length == 0) return {from, to};
    const Point step{(to.x - from.x) / length, (to.y - from.y) / length};
    Part seen{0, length};
    cut(seen, from.x, step.x, within.left, within.right);
    cut(seen, from.y, step.y, within.top, within.bottom);

    double period = 0;
    for (const double one : lengths) period += one;
    std::vector<Point> strokes;
    const auto at = [&](double distance) {
        return Point{from.x + step.x * distance, from.y + step.y * distance};
    };
    double begin = std::floor(seen.enter / period) * period;
    for (std::size_t i = 0; begin <= seen.leave; i = (i + 1) % lengths.size()) {
        const bool inked = i % 2 == 0;
        if (inked) strokes.push_back(at(begin));
        if (inked) strokes.push_back(at(std::min(begin + lengths[i] - 1, length)));
        begin += lengths[i];
    }
    return strokes;
}
