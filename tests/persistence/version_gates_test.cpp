#include "persistence/version_gates.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string_view>

namespace {

constexpr std::array<std::string_view, 12> tags{"beta 4",   "beta 4.1", "beta 5", "beta 6",
                                                "6",        "beta 7.1", "beta 8", "beta 8.1",
                                                "beta 2.1", "1.0",      "Beta 4", ""};

std::set<std::string_view> those(bool (*gate)(std::string_view), bool answer) {
    std::set<std::string_view> found;
    for (const std::string_view tag : tags)
        if (gate(tag) == answer) found.insert(tag);
    return found;
}

using Tags = std::set<std::string_view>;

} // namespace

TEST(VersionGates, OnlyTheOldestHasAbsoluteSymbols) {
    EXPECT_EQ(those(has_absolute_symbol, true), Tags{"beta 4"});
}

TEST(VersionGates, ThreeLackTheState) {
    EXPECT_EQ(those(has_unit_state, false), (Tags{"beta 4", "beta 4.1", "beta 5"}));
}

TEST(VersionGates, SixLackTheFreeText) {
    EXPECT_EQ(those(has_free_text, false), (Tags{"beta 4", "beta 4.1", "beta 5", "beta 6", "6", "beta 7.1"}));
}

TEST(VersionGates, TwoEndAfterTheShapes) {
    EXPECT_EQ(those(ends_after_shapes, true), (Tags{"beta 4", "beta 4.1"}));
}

TEST(VersionGates, ThreeEndAfterAPolygon) {
    EXPECT_EQ(those(ends_after_polygon, true), (Tags{"beta 4", "beta 4.1", "beta 5"}));
}

TEST(VersionGates, NineLackRateAndShells) {
    EXPECT_EQ(those(has_rate_and_shells, false), (Tags{"beta 4", "beta 4.1", "beta 5", "beta 6", "6",
                                                       "beta 7.1", "beta 8", "beta 8.1", "beta 2.1"}));
}
