#include "core/changes.h"

#include "core/failure.h"
#include "core/map_controls.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <vector>

namespace {

using Number = Counted<int, Changes<struct NumberKind>>;
using NumberChanges = Changes<struct NumberKind>;

} // namespace

// Else a growing array of controls would copy their texts.
static_assert(std::is_nothrow_move_constructible_v<UnitMarker>);

TEST(Changes, EachAssignmentCountsAndNoCopy) {
    Number number = 3;
    const Number other = 4;
    const auto before = NumberChanges::count();
    const Number copy(number);
    EXPECT_EQ(NumberChanges::count(), before);
    number = 5;
    EXPECT_EQ(NumberChanges::count(), before + 1);
    number = other;
    EXPECT_EQ(NumberChanges::count(), before + 2);
    EXPECT_EQ(number, 4);
    EXPECT_EQ(copy, 3);
}

TEST(Kept, IsWorkedOutOnceForTheSameCounts) {
    Kept<int, 2> kept;
    int times = 0;
    const auto work_out = [&] { return ++times; };
    EXPECT_EQ(kept.get(work_out, 0U, 0U), 1) << "also for counts that nothing has raised yet";
    EXPECT_EQ(kept.get(work_out, 0U, 0U), 1);
    EXPECT_EQ(kept.get(work_out, 0U, 1U), 2);
    EXPECT_EQ(kept.get(work_out, 1U, 1U), 3);
    EXPECT_EQ(kept.get(work_out, 1U, 1U), 3);
}

TEST(Kept, FailureKeepsNothingOfWhatWasNotFinished) {
    Kept<std::vector<int>, 1> kept;
    bool fails = true;
    const auto work_out = [&] {
        std::vector<int> half{1};
        if (fails) throw Failure{failure::out_of_memory};
        half.push_back(2);
        return half;
    };
    EXPECT_THROW(kept.get(work_out, 7U), Failure);
    fails = false;
    EXPECT_EQ(kept.get(work_out, 7U), (std::vector<int>{1, 2}));
}
