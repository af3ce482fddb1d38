#include "core/dashes.h"

#include <gtest/gtest.h>

namespace {

const Bounds anywhere;

TEST(Dashes, DashesAreEighteenPixelsWithGapsOfSix) {
    EXPECT_EQ(dashes({100, 5}, {140, 5}, 1, anywhere),
              (std::vector<Point>{{100, 5}, {117, 5}, {124, 5}, {140, 5}}));
}

TEST(Dashes, EachStyleHasItsOwnStrokes) {
    EXPECT_EQ(dashes({0, 0}, {0, 8}, 2, anywhere), (std::vector<Point>{{0, 0}, {0, 2}, {0, 6}, {0, 8}}));
    EXPECT_EQ(dashes({0, 0}, {20, 0}, 3, anywhere), (std::vector<Point>{{0, 0}, {8, 0}, {15, 0}, {17, 0}}));
    EXPECT_EQ(dashes({0, 0}, {20, 0}, 4, anywhere),
              (std::vector<Point>{{0, 0}, {8, 0}, {12, 0}, {14, 0}, {18, 0}, {20, 0}}));
}

TEST(Dashes, SolidLineAndLineWithoutLengthAreOneStroke) {
    EXPECT_EQ(dashes({1, 2}, {30, 4}, 0, anywhere), (std::vector<Point>{{1, 2}, {30, 4}}));
    EXPECT_EQ(dashes({1, 2}, {30, 4}, 7, anywhere), (std::vector<Point>{{1, 2}, {30, 4}}));
    EXPECT_EQ(dashes({1, 2}, {1, 2}, 1, anywhere), (std::vector<Point>{{1, 2}, {1, 2}}));
}

TEST(Dashes, StrokesInViewAreThoseOfTheWholeLine) {
    const std::vector<Point> whole = dashes({-3000, -1000}, {9000, 5000}, 1, anywhere);
    const Bounds view{200, 200, 900, 900};
    const std::vector<Point> seen = dashes({-3000, -1000}, {9000, 5000}, 1, view);
    EXPECT_LT(seen.size(), whole.size() / 5);
    std::size_t in_view = 0;
    for (std::size_t i = 0; i + 1 < whole.size(); i += 2) {
        if (!bounds_of(whole[i], whole[i + 1]).meets(view)) continue;
        ++in_view;
        EXPECT_TRUE(std::any_of(seen.begin(), seen.end(), [&](const Point& point) {
            return std::abs(point.x - whole[i].x) < 1e-6 && std::abs(point.y - whole[i].y) < 1e-6;
        })) << whole[i].x;
    }
    EXPECT_GT(in_view, 20U);
}

TEST(Dashes, LineOutOfViewHasNoStrokes) {
    EXPECT_TRUE(dashes({0, 0}, {5000, 0}, 1, {100, 100, 200, 200}).empty());
    EXPECT_TRUE(dashes({0, 0}, {50, 50}, 1, {100, 100, 200, 200}).empty());
}

} // namespace
