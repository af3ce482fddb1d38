#include "core/collection.h"

#include "core/trap.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace {

struct Record {
    std::string name;
};

std::shared_ptr<Record> record(const std::string& name) { return std::make_shared<Record>(Record{name}); }

std::string names(const Collection<Record>& collection) {
    std::string all;
    for (const auto& item : collection) all += item->name;
    return all;
}

} // namespace

TEST(Collection, KeepsTheOrderOfInsertion) {
    Collection<Record> collection;
    for (const char* name : {"c", "a", "b"}) collection.add(record(name), name);
    EXPECT_EQ(names(collection), "cab");
    collection.remove("a");
    EXPECT_EQ(names(collection), "cb");
    collection.add(record("a"), "a");
    EXPECT_EQ(names(collection), "cba");
}

TEST(Collection, PresentKeyFailsWith457AndChangesNothing) {
    Collection<Record> collection;
    collection.add(record("a"), "a");
    EXPECT_EQ(failure_of([&] { collection.add(record("b"), "a"); }), 457);
    EXPECT_FALSE(collection.add_new(record("b"), "a"));
    EXPECT_EQ(names(collection), "a");
}

TEST(Collection, AbsentKeyFailsWith5) {
    Collection<Record> collection;
    EXPECT_EQ(failure_of([&] { collection.item("b"); }), 5);
    EXPECT_EQ(failure_of([&] { collection.remove("b"); }), 5);
    EXPECT_EQ(collection.find("b"), nullptr);
}

TEST(Collection, KeysDifferByLetterCaseAndMayBeEmpty) {
    Collection<Record> collection;
    collection.add(record("a"), "a");
    collection.add(record("A"), "A");
    collection.add(record("-"), "");
    EXPECT_EQ(collection.item("A")->name, "A");
    EXPECT_EQ(collection.item("")->name, "-");
    EXPECT_FALSE(collection.add_new(record("x"), ""));
}

TEST(Collection, LongKeysDifferInTheirLastLetterToo) {
    Collection<Record> collection;
    const std::string beginning(500, 'k');
    for (int i = 0; i < 20; ++i) collection.add(record(std::to_string(i)), beginning + std::to_string(i));
    EXPECT_EQ(collection.item(beginning + "7")->name, "7");
    EXPECT_EQ(collection.find(beginning), nullptr);
    EXPECT_FALSE(collection.add_new(record("x"), beginning + "19"));
}

TEST(Collection, KeysOfEveryLengthStayWhatTheyAreWhenGapsClose) {
    Collection<Record> collection;
    const auto key = [](int length) { return std::string(static_cast<std::size_t>(length), 'k'); };
    for (int length = 0; length < 60; ++length) collection.add(record(std::to_string(length)), key(length));
    for (int length = 0; length < 60; length += 7) collection.remove(key(length));
    EXPECT_EQ(collection.at(1)->name, "1");
    for (int length = 0; length < 60; ++length) {
        const auto found = collection.find(key(length));
        EXPECT_EQ(found ? found->name : "", length % 7 == 0 ? "" : std::to_string(length));
    }
}

TEST(Collection, PositionOfAKeyFollowsRemovals) {
    Collection<Record> collection;
    for (const char* name : {"a", "b", "c"}) collection.add(record(name), name);
    EXPECT_EQ(collection.position("c"), 3U);
    collection.remove("a");
    EXPECT_EQ(collection.position("c"), 2U);
    EXPECT_EQ(collection.position("a"), 0U);
}

TEST(Collection, RecordsWithoutKeyAreNotFoundByTheEmptyKey) {
    Collection<Record> collection;
    collection.add(record("a"));
    EXPECT_EQ(collection.find(""), nullptr);
}

TEST(Collection, PositionsCountFromOneAndFailWith9) {
    Collection<Record> collection;
    for (const char* name : {"a", "b", "c"}) collection.add(record(name), name);
    EXPECT_EQ(collection.at(1)->name, "a");
    collection.remove("a");
    EXPECT_EQ(collection.at(1)->name, "b");
    EXPECT_EQ(failure_of([&] { collection.at(0); }), 9);
    EXPECT_EQ(failure_of([&] { collection.at(3); }), 9);
    collection.remove_at(2);
    EXPECT_EQ(names(collection), "b");
    EXPECT_EQ(failure_of([&] { collection.remove_at(2); }), 9);
}

TEST(Collection, InsertsBehindAPosition) {
    Collection<Record> collection;
    collection.insert_after(0, record("b"));
    collection.insert_after(1, record("c"));
    collection.insert_after(0, record("a"));
    EXPECT_EQ(names(collection), "abc");
    EXPECT_EQ(failure_of([&] { collection.insert_after(4, record("x")); }), 9);
}

TEST(Collection, ManyRecordsKeepKeyPositionAndOrderThroughRemovals) {
    Collection<Record> collection;
    constexpr int count = 2000;
    for (int i = 0; i < count; ++i) collection.add(record(std::to_string(i)), std::to_string(i));
    for (int i = 0; i < count; i += 2) collection.remove(std::to_string(i));
    EXPECT_EQ(collection.count(), 1000U);
    EXPECT_EQ(collection.item("1999")->name, "1999");
    EXPECT_EQ(collection.find("1998"), nullptr);
    EXPECT_EQ(collection.at(1000)->name, "1999");
    collection.add(record("again"), "0");
    EXPECT_EQ(collection.at(1001)->name, "again");
    collection.remove_at(1);
    EXPECT_EQ(collection.find("1"), nullptr);
    EXPECT_EQ(collection.at(1)->name, "3");
}

TEST(Collection, RemovedAndAddedAgainUnderManyKeysEndsInTheNewOrder) {
    Collection<Record> collection;
    for (int i = 0; i < 50; ++i) collection.add(record(std::to_string(i)), std::to_string(i));
    for (int i = 49; i >= 0; --i) {
        const auto held = collection.item(std::to_string(i));
        collection.remove(std::to_string(i));
        collection.add(held, "n" + std::to_string(i));
    }
    EXPECT_EQ(collection.at(1)->name, "49");
    EXPECT_EQ(collection.at(50)->name, "0");
    EXPECT_EQ(collection.item("n7")->name, "7");
}

TEST(Collection, EmptiedOneStartsAnew) {
    Collection<Record> collection;
    for (int i = 0; i < 20; ++i) collection.add(record("x"), std::to_string(i));
    for (int i = 0; i < 20; ++i) collection.remove(std::to_string(i));
    EXPECT_TRUE(collection.empty());
    collection.add(record("y"), "3");
    EXPECT_EQ(names(collection), "y");
}

TEST(Collection, VersionIsAnotherAfterEveryChangeAndInEveryCollection) {
    Collection<Record> collection;
    std::set<std::uint64_t> seen{collection.version()};
    const auto is_new = [&] { return seen.insert(collection.version()).second; };
    collection.add(record("a"), "a");
    EXPECT_TRUE(is_new());
    collection.add(record("b"));
    EXPECT_TRUE(is_new());
    collection.insert_after(0, record("c"));
    EXPECT_TRUE(is_new());
    collection.remove_at(1);
    EXPECT_TRUE(is_new());
    collection.remove("a");
    EXPECT_TRUE(is_new());
    EXPECT_FALSE(collection.contains("a"));
    EXPECT_FALSE(is_new()) << "looking changes nothing";
    collection.clear();
    EXPECT_TRUE(is_new());
    EXPECT_TRUE(seen.insert(Collection<Record>().version()).second);
}

TEST(CollectionRef, DroppedOneIsEmptyAtItsNextUse) {
    CollectionRef<Record> place;
    place->add(record("a"), "a");
    place.drop();
    EXPECT_EQ(place.count(), 0U);
    EXPECT_EQ(place->count(), 0U);
}

TEST(CollectionRef, CopySharesTheCollectionAlsoWhenItWasEmpty) {
    CollectionRef<Record> unit;
    const CollectionRef<Record> dialog = unit;
    unit->add(record("a"), "a");
    EXPECT_EQ(dialog.count(), 1U);
    unit.drop();
    EXPECT_EQ(dialog.count(), 1U);
    EXPECT_EQ(unit.count(), 0U);
}
