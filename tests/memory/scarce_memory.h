#pragma once

#include "core/trap.h"

#include <gtest/gtest.h>

#include <string>

/// Lets the allocation behind so many further ones fail, and only that one.
void let_allocation_fail(long good_ones_before);
/// Lets allocations be again. Answers whether one has failed.
bool end_scarcity();

/// Runs `attempt` over and over, each time with a later allocation failing, until all of them have memory.
/// Each attempt makes everything ready anew and then runs what it is about by `scarcely(body)`, which answers
/// the number of the failure that the body ends with, 0 for none. There must be allocations to fail.
template <class Attempt> void try_with_scarce_memory(Attempt attempt) {
    long failed = 0;
    for (bool again = true; again; failed += again ? 1 : 0) {
        SCOPED_TRACE("allocations before the one that fails: " + std::to_string(failed));
        attempt([&](auto body) {
            let_allocation_fail(failed);
            const int number = failure_of(body);
            again = end_scarcity();
            return number;
        });
        if (testing::Test::HasFailure()) return;
    }
    EXPECT_GT(failed, 0);
}
