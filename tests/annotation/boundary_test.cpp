#include "annotation/boundary.h"

#include "annotation/segment_heading.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>

TEST(SegmentHeadings, TurnCounterClockwiseFromTheEast) {
    EXPECT_EQ(segment_heading(0, 0, 100, 0).degrees, 0);
    EXPECT_EQ(segment_heading(0, 100, 0, 0).degrees, 90);
    EXPECT_EQ(segment_heading(100, 0, 0, 0).degrees, 180);
    EXPECT_EQ(segment_heading(0, 0, 0, 100).degrees, 270);
    EXPECT_EQ(segment_heading(5, 5, 5, 5).degrees, 270) << "of one point";
    EXPECT_EQ(segment_heading(0, 30, 40, 0).degrees, 90 - 53);
    EXPECT_EQ(segment_heading(40, 30, 0, 0).degrees, 53 + 90);
    EXPECT_EQ(segment_heading(40, 0, 0, 30).degrees, 270 - 53);
    EXPECT_EQ(segment_heading(0, 0, 40, 30).degrees, 53 + 270);
}

TEST(SegmentHeadings, AlmostLevelLineKeepsItsAngle) {
    EXPECT_EQ(segment_heading(0, 0, 9000, 1).degrees, 90 + 270);
}

TEST(Boundaries, CompanyHasOneBarInTheGap) {
    EXPECT_EQ(boundary_strokes({0, 0}, {100, 0}, "Company"),
              (std::vector<Point>{{0, 0}, {38, 0}, {50, 7}, {50, -7}, {62, 0}, {100, 0}}));
}

TEST(Boundaries, EachEchelonHasItsNumberOfStrokes) {
    const std::vector<std::pair<const char*, std::size_t>> rows{
        {"Corps", 8}, {"Division", 6}, {"Brigade", 4}, {"Regiment", 5}, {"Battalion", 4}, {"Company", 3}};
    for (const auto& [echelon, strokes] : rows)
        EXPECT_EQ(boundary_strokes({0, 0}, {200, 0}, echelon).size(), 2 * strokes) << echelon;
}

namespace {

struct Stroke {
    int s_angle, s_distance, c_angle, c_distance;
};

const std::map<std::string, std::vector<Stroke>> signs{
    {"Corps",
     {{75, 24, 20, 18},
      {70, 18, 16, 25},
      {70, 18, 32, 12},
      {55, 12, 20, 18},
      {55, 12, 63, 7},
      {30, 8, 35, 12}}},
    {"Division", {{70, 20, 30, 14}, {61, 14, 20, 20}, {60, 13, 47, 9}, {45, 9, 30, 14}}},
    {"Brigade", {{65, 16, 40, 10}, {50, 10, 25, 16}}},
    {"Regiment", {{70, 18, 20, 18}, {62, 14, 28, 14}, {52, 11, 38, 11}}},
    {"Battalion", {{65, 16, 25, 16}, {55, 12, 35, 12}}},
    {"Company", {{60, 14, 30, 14}}}};

double sine(int degrees) { return std::sin(degrees * 3.14 / 180); }
double cosine(int degrees) { return std::cos(degrees * 3.14 / 180); }

} // namespace

TEST(Boundaries, SignsTurnWithTheSegment) {
    for (const Point to : {Point{200, 0}, {0, -200}, {-200, 0}, {0, 200}, {130, 90}, {-70, 140}}) {
        const int heading = segment_heading(0, 0, to.x, to.y).degrees;
        for (const auto& [echelon, strokes] : signs) {
            const std::vector<Point> drawn = boundary_strokes({0, 0}, to, echelon);
            ASSERT_EQ(drawn.size(), 2 * strokes.size() + 4) << echelon;
            const Point gap = drawn[1];
            for (std::size_t i = 0; i < strokes.size(); ++i) {
                const Stroke& stroke = strokes[i];
                const int s = heading + stroke.s_angle;
                const int c = -(heading + stroke.c_angle);
                EXPECT_EQ(drawn[2 * i + 2], (Point{gap.x + std::floor(sine(s) * stroke.s_distance),
                                                   gap.y + std::floor(cosine(s) * stroke.s_distance)}))
                    << echelon << " " << heading;
                EXPECT_EQ(drawn[2 * i + 3], (Point{gap.x + std::floor(cosine(c) * stroke.c_distance),
                                                   gap.y + std::floor(sine(c) * stroke.c_distance)}))
                    << echelon << " " << heading;
            }
        }
    }
}

TEST(Boundaries, HalvesFollowTheHeading) {
    EXPECT_EQ(boundary_strokes({0, 0}, {0, -200}, "")[1], (Point{0, -88}));
    EXPECT_EQ(boundary_strokes({0, 0}, {-200, 0}, "")[1], (Point{-88, 0}));
    EXPECT_EQ(boundary_strokes({0, 0}, {0, 500}, "")[2], (Point{-1, 262})) << "3.14 is a little short";
}

TEST(Boundaries, UnknownEchelonHasOnlyTheTwoHalves) {
    EXPECT_EQ(boundary_strokes({0, 0}, {200, 0}, "army"),
              (std::vector<Point>{{0, 0}, {88, 0}, {112, 0}, {200, 0}}));
}

TEST(Boundaries, HalfOfTheLengthIsAWholeNumber) {
    EXPECT_EQ(boundary_strokes({0, 0}, {23, 0}, "")[1], (Point{-1, 0}));
    EXPECT_EQ(boundary_strokes({0, 0}, {25, 0}, "")[1], (Point{0, 0}));
}

TEST(Boundaries, ShortSegmentCrossesItself) {
    const auto strokes = boundary_strokes({0, 0}, {10, 0}, "Company");
    EXPECT_EQ(strokes[1], (Point{-7, 0}));
    EXPECT_EQ(strokes.size(), 6U);
    EXPECT_EQ(boundary_strokes({0, 0}, {20, 0}, "Company")[1], (Point{-2, 0}));
}
