#include "annotation/boundary.h"

#include "annotation/segment_heading.h"
#include "core/numbers.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

namespace {

/// A point of a sign, from where the line stops: along the sine first, or along the cosine of the angle taken
/// the other way.
struct SignPoint {
    char kind; // 'S' or 'C'
    int angle; // degrees from the heading
    int distance;
};

constexpr std::array<SignPoint, 12> corps{{{'S', 75, 24},
                                           {'C', 20, 18},
                                           {'S', 70, 18},
                                           {'C', 16, 25},
                                           {'S', 70, 18},
                                           {'C', 32, 12},
                                           {'S', 55, 12},
                                           {'C', 20, 18},
                                           {'S', 55, 12},
                                           {'C', 63, 7},
                                           {'S', 30, 8},
                                           {'C', 35, 12}}};
constexpr std::array<SignPoint, 8> division{{{'S', 70, 20},
                                             {'C', 30, 14},
                                             {'S', 61, 14},
                                             {'C', 20, 20},
                                             {'S', 60, 13},
                                             {'C', 47, 9},
                                             {'S', 45, 9},
                                             {'C', 30, 14}}};
constexpr std::array<SignPoint, 4> brigade{{{'S', 65, 16}, {'C', 40, 10}, {'S', 50, 10}, {'C', 25, 16}}};
constexpr std::array<SignPoint, 6> regiment{
    {{'S', 70, 18}, {'C', 20, 18}, {'S', 62, 14}, {'C', 28, 14}, {'S', 52, 11}, {'C', 38, 11}}};
constexpr std::array<SignPoint, 4> battalion{{{'S', 65, 16}, {'C', 25, 16}, {'S', 55, 12}, {'C', 35, 12}}};
constexpr std::array<SignPoint, 2> company{{{'S', 60, 14}, {'C', 30, 14}}};

struct Sign {
    std::string_view echelon;
    std::span<const SignPoint> points;
};

constexpr std::array<Sign, 6> signs{{{"Corps", corps},
                                     {"Division", division},
                                     {"Brigade", brigade},
                                     {"Regiment", regiment},
                                     {"Battalion", battalion},
                                     {"Company", company}}};

Point along(Point from, double distance, int heading) {
    return {round_half_even(from.x + distance * coarse_sin(heading + 90)),
            round_half_even(from.y + distance * coarse_cos(heading + 90))};
}

Point sign_point(Point gap, int heading, const SignPoint& point) {
    if (point.kind == 'S') {
        const int angle = heading + point.angle;
        return {gap.x + whole_part(point.distance * coarse_sin(angle)),
                gap.y + whole_part(point.distance * coarse_cos(angle))};
    }
    const int angle = -(heading + point.angle);
    return {gap.x + whole_part(point.distance * coarse_cos(angle)),
            gap.y + whole_part(point.distance * coarse_sin(angle))};
}

} // namespace

std::vector<Point> boundary_strokes(Point from, Point to, const std::string& echelon) {
    constexpr int gap = 12;
    const SegmentHeading heading = segment_heading(from.x, from.y, to.x, to.y);
    const double half = whole_part(heading.length / 2);
    const Point gap_start = along(from, half - gap, heading.degrees);
    std::vector<Point> strokes{from, gap_start};
    const auto* const sign =
        std::find_if(signs.begin(), signs.end(), [&](const Sign& s) { return s.echelon == echelon; });
    if (sign != signs.end())
        for (const SignPoint& point : sign->points)
            strokes.push_back(sign_point(gap_start, heading.degrees, point));
    strokes.push_back(along(from, half + gap, heading.degrees));
    strokes.push_back(to);
    return strokes;
}
