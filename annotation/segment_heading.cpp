#include "annotation/segment_heading.h"

#include "core/numbers.h"

#include <cmath>

namespace {

/// The angle away from the vertical, whole degrees.
int steepness(double dx, double length) {
    const double s = length == 0 ? 1 : dx / length;
    if (s == 1) return 0;
    return to_int16(std::atan(s / std::sqrt(1 - s * s)) * 180 / coarse_pi);
}

int heading_degrees(double x1, double y1, double x2, double y2, int a) {
    if (x1 < x2 && y1 == y2) return 0;
    if (x1 <= x2 && y1 > y2) return 90 - a;
    if (x1 > x2 && y1 > y2) return a + 90;
    if (x1 > x2 && y1 == y2) return 180;
    if (x1 > x2 && y1 < y2) return 270 - a;
    if (x1 == x2 && y1 < y2) return 270;
    return a + 270;
}

} // namespace

SegmentHeading segment_heading(double x1, double y1, double x2, double y2) {
    const double dx = static_cast<float>(std::abs(x1 - x2));
    const double dy = static_cast<float>(std::abs(y1 - y2));
    const double length = std::sqrt(dx * dx + dy * dy);
    return {heading_degrees(x1, y1, x2, y2, steepness(dx, length)), length};
}

double coarse_sin(double degrees) { return std::sin(degrees * coarse_pi / 180); }

double coarse_cos(double degrees) { return std::cos(degrees * coarse_pi / 180); }
