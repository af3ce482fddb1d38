#include "annotation/boundary.h"

#include "annotation/segment_heading.h"

#include <gtest/gtest.h>

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
