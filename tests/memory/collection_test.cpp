#include "core/collection.h"

#include "tests/memory/scarce_memory.h"

#include <algorithm>
#include <array>
#include <memory>
#include <numeric>
#include <string>
#include <vector>

namespace {

struct Record {
    int number;
};

/// Long enough for a place of its own.
std::string key_of(int number) { return std::string(60, 'k') + std::to_string(number); }

/// The records 0 to below the count, by number and with their keys.
struct Numbered {
    explicit Numbered(int count) {
        for (int i = 0; i < count; ++i) add(i);
    }
    void add(int number) { records.add(std::make_shared<Record>(Record{number}), key_of(number)); }

    std::vector<int> walked() const {
        std::vector<int> numbers;
        for (const auto& record : records) numbers.push_back(record->number);
        return numbers;
    }
    /// Whether exactly the records of these numbers are listed in this order and found by their keys.
    void expect(const std::vector<int>& numbers, int keys) const {
        EXPECT_EQ(walked(), numbers);
        EXPECT_EQ(records.count(), numbers.size());
        for (int i = 0; i < keys; ++i) {
            const auto at = std::find(numbers.begin(), numbers.end(), i);
            const Record* const found = records.look_up(key_of(i));
            ASSERT_EQ(found != nullptr, at != numbers.end()) << i;
            if (found == nullptr) continue;
            EXPECT_EQ(found->number, i);
            EXPECT_EQ(records.position(key_of(i)), static_cast<std::size_t>(at - numbers.begin()) + 1);
        }
    }

    Collection<Record> records;
};

std::vector<int> up_to(int count) {
    std::vector<int> numbers(static_cast<std::size_t>(count));
    std::iota(numbers.begin(), numbers.end(), 0);
    return numbers;
}

/// Without one, with an index of the keys, and where either begins or grows.
constexpr std::array counts{0, 1, 7, 8, 9, 16, 17, 32, 33};

} // namespace

TEST(CollectionInScarceMemory, AnAdditionIsWholeOrNotThere) {
    for (const int count : counts)
        try_with_scarce_memory([&](auto scarcely) {
            Numbered numbered(count);
            const int number = scarcely([&] { numbered.add(count); });
            EXPECT_TRUE(number == 0 || number == failure::out_of_memory);
            numbered.expect(up_to(number == 0 ? count + 1 : count), count + 1);
            numbered.add(count + 1);
            EXPECT_EQ(numbered.records.item(key_of(count + 1))->number, count + 1);
        });
}

TEST(CollectionInScarceMemory, AnAdditionBehindGapsIsWholeOrNotThere) {
    for (const int count : {8, 9, 10, 16, 17, 18, 32})
        try_with_scarce_memory([&](auto scarcely) {
            Numbered numbered(count);
            for (const int gone : {0, 5}) numbered.records.remove(key_of(gone));
            const int number = scarcely([&] { numbered.add(count); });
            EXPECT_TRUE(number == 0 || number == failure::out_of_memory);
            std::vector<int> numbers = up_to(number == 0 ? count + 1 : count);
            std::erase_if(numbers, [](int one) { return one == 0 || one == 5; });
            numbered.expect(numbers, count + 1);
        });
}

TEST(CollectionInScarceMemory, AnAdditionWithoutKeyIsWholeOrNotThere) {
    for (const int count : {0, 1, 8, 16, 32})
        try_with_scarce_memory([&](auto scarcely) {
            Numbered numbered(count);
            const auto added = std::make_shared<Record>(Record{-1});
            const int number = scarcely([&] { numbered.records.add(added); });
            EXPECT_TRUE(number == 0 || number == failure::out_of_memory);
            std::vector<int> numbers = up_to(count);
            if (number == 0) numbers.push_back(-1);
            numbered.expect(numbers, count);
        });
}

TEST(CollectionInScarceMemory, AnInsertionIsWholeOrNotThere) {
    for (const int count : {1, 8, 16, 32})
        for (const int position : {0, count / 2, count})
            try_with_scarce_memory([&](auto scarcely) {
                Numbered numbered(count);
                const auto inserted = std::make_shared<Record>(Record{-1});
                const int number = scarcely(
                    [&] { numbered.records.insert_after(static_cast<std::size_t>(position), inserted); });
                EXPECT_TRUE(number == 0 || number == failure::out_of_memory);
                std::vector<int> numbers = up_to(count);
                if (number == 0) numbers.insert(numbers.begin() + position, -1);
                numbered.expect(numbers, count);
            });
}

TEST(CollectionInScarceMemory, RemovalsAndWalksNeedNone) {
    for (const int count : {3, 9, 12, 33}) {
        Numbered numbered(count);
        const std::string first = key_of(0);
        const std::string third = key_of(2);
        let_allocation_fail(0);
        const int number = failure_of([&] {
            numbered.records.remove(first);
            numbered.records.remove_at(1);
            numbered.records.remove(third);
            EXPECT_EQ(numbered.records.begin() != numbered.records.end(), count > 3);
        });
        EXPECT_FALSE(end_scarcity());
        EXPECT_EQ(number, 0);
        std::vector<int> numbers = up_to(count);
        numbers.erase(numbers.begin(), numbers.begin() + 3);
        numbered.expect(numbers, count);
    }
}
