#pragma once

#include "core/changes.h"
#include "core/failure.h"
#include "core/key_index.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The key of a record, or none. An ID lies in the key itself, so that looking up thousands of them goes
/// through one block of memory; only a longer text has a place of its own.
class RecordKey {
  public:
    RecordKey() = default;
    explicit RecordKey(std::string_view text) : length(static_cast<std::uint32_t>(text.size())) {
        if (text.size() > own.size()) longer = std::make_unique_for_overwrite<char[]>(text.size());
        text.copy(longer ? longer.get() : own.data(), text.size());
    }

    bool present() const { return length != absent; }
    /// The text of a present key.
    std::string_view text() const { return {longer ? longer.get() : own.data(), length}; }

  private:
    static constexpr std::uint32_t absent = 0xFFFFFFFF;

    std::unique_ptr<char[]> longer;
    std::uint32_t length = absent;
    std::array<char, 44> own{}; // an ID has 38 letters
};

/// An ordered list of shared records that can also be reached by a text key. The order is that of insertion.
/// Finding by key and by 1-based position takes constant time, and so does removing by key: the gap is closed
/// once, at the next walk.
template <class T> class Collection {
  public:
    using Item = std::shared_ptr<T>;

    Collection() = default;
    // A list has its identity: it is shared through a CollectionRef, never copied.
    Collection(const Collection&) = delete;
    Collection& operator=(const Collection&) = delete;
    ~Collection() = default;

    /// A walk over records that lie all over the memory: it asks for the front of each, which is what most
    /// walks want, some steps before it gets there. So a large campaign is walked about as quickly, record
    /// for record, as a small one.
    template <std::size_t front> class Walk {
      public:
        Walk(const Item* item, const Item* end) : item(item), end(end) {}
        const Item& operator*() const { return *item; }
        Walk& operator++() {
            ++item;
            if (end - item > look_ahead) fetch(item[look_ahead].get());
            return *this;
        }
        bool operator!=(const Walk& other) const { return item != other.item; }

      private:
        static constexpr std::ptrdiff_t look_ahead = 8;
        static void fetch(const T* record) {
            const auto* const bytes = reinterpret_cast<const char*>(record);
            for (std::size_t at = 0; at < std::min(front, sizeof(T)); at += cache_line)
                __builtin_prefetch(bytes + at);
        }

        const Item* item;
        const Item* end;
    };

    static constexpr std::size_t cache_line = 64;
    using Iterator = Walk<3 * cache_line>;

    /// The collection for a walk that looks at all of each record.
    class Whole {
      public:
        using Iterator = Walk<static_cast<std::size_t>(-1)>;

        explicit Whole(const Collection& collection) : collection(collection) {}
        Iterator begin() const { return collection.walk<Iterator>(0); }
        Iterator end() const { return collection.walk<Iterator>(collection.count()); }

      private:
        const Collection& collection;
    };

    /// Another number after every change of which records are listed; no two lists of the same kind of record
    /// ever have the same one.
    std::uint64_t version() const { return last_change; }

    std::size_t count() const { return records.size() - gaps; }
    bool empty() const { return count() == 0; }

    /// A walk in order. The collection must not change meanwhile: a walk that changes it goes over `items()`.
    Iterator begin() const { return walk<Iterator>(0); }
    Iterator end() const { return walk<Iterator>(count()); }
    Whole whole() const { return Whole(*this); }

    /// The records as they stand now.
    std::vector<Item> items() const {
        close_gaps();
        return records;
    }

    /// Appends a record without a key.
    void add(Item item) {
        note_change();
        records.push_back(std::move(item));
    }

    /// Appends a record under a key. Fails with 457 when the key is present.
    void add(Item item, std::string_view key) {
        if (!add_new(std::move(item), key)) throw Failure{failure::key_present};
    }

    /// Like `add`, but a present key is told by the answer: false, and nothing changes.
    bool add_new(Item item, std::string_view key) {
        const std::size_t place = records.size();
        // Before anything changes: memory may run out.
        make_room_for_one();
        RecordKey named(key);
        if (!indexed() && place >= largest_without_index) build_index();
        if (indexed() ? !index.add_new(key, place, key_at()) : place_of(key) != none) return false;
        note_change();
        records.push_back(std::move(item));
        keys.resize(place);
        keys.push_back(std::move(named));
        return true;
    }

    /// Puts a record without a key behind the 1-based position; 0 puts it first. Fails with 9.
    void insert_after(std::size_t position, Item item) {
        close_gaps();
        if (position > records.size()) throw Failure{failure::no_such_position};
        const bool before_keys = position < keys.size();
        if (before_keys) make_room_for_one();
        note_change();
        const auto at = static_cast<std::ptrdiff_t>(position);
        records.insert(records.begin() + at, std::move(item));
        if (before_keys) keys.insert(keys.begin() + at, RecordKey());
        if (indexed()) renew_index();
    }

    bool contains(std::string_view key) const { return place_of(key) != none; }

    /// The 1-based position of the record under the key, 0 when there is none.
    std::size_t position(std::string_view key) const {
        close_gaps();
        return place_of(key) + 1; // of none that is 0
    }

    /// The record under the key, or nothing.
    Item find(std::string_view key) const {
        const std::size_t place = place_of(key);
        return place == none ? nullptr : records[place];
    }

    /// The same for a short look, without a share in the record.
    T* look_up(std::string_view key) const {
        const std::size_t place = place_of(key);
        return place == none ? nullptr : records[place].get();
    }

    /// The record under the key. Fails with 5 when the key is absent.
    const Item& item(std::string_view key) const { return records[present(key)]; }

    /// The record at the 1-based position. Fails with 9 when there is none.
    const Item& at(std::size_t position) const {
        close_gaps();
        if (position < 1 || position > records.size()) throw Failure{failure::no_such_position};
        return records[position - 1];
    }

    /// Fails with 5 when the key is absent.
    void remove(std::string_view key) {
        const std::size_t place = present(key);
        note_change();
        if (indexed()) index.remove(key, place);
        records[place] = nullptr;
        keys[place] = RecordKey();
        ++gaps;
        if (empty()) clear();
    }

    /// Fails with 9 when there is no such 1-based position.
    void remove_at(std::size_t position) {
        close_gaps();
        if (position < 1 || position > records.size()) throw Failure{failure::no_such_position};
        note_change();
        const auto at = static_cast<std::ptrdiff_t>(position - 1);
        records.erase(records.begin() + at);
        if (position <= keys.size()) keys.erase(keys.begin() + at);
        if (indexed()) renew_index();
    }

    void clear() {
        note_change();
        records.clear();
        keys.clear();
        index.clear();
        gaps = 0;
    }
    /// Makes room for so many records.
    void reserve(std::size_t count) { records.reserve(count); }

  private:
    static constexpr std::size_t none = KeyIndex::none;
    // Most collections belong to one unit and hold a handful of records: comparing so few keys is quicker
    // than hashing one, and thousands of units then carry no hash table.
    static constexpr std::size_t largest_without_index = 8;

    template <class Steps> Steps walk(std::size_t from) const {
        close_gaps();
        return {records.data() + from, records.data() + records.size()};
    }

    void note_change() {
        last_change = ++changes_of_all;
        ListChanges<T>::add_one();
    }

    void make_room_for_one() {
        if (records.size() == records.capacity())
            records.reserve(std::max<std::size_t>(1, 2 * records.size()));
        keys.reserve(records.capacity());
    }

    auto key_at() const {
        return [this](std::size_t place) { return keys[place].text(); };
    }
    bool indexed() const { return !index.empty(); }

    std::size_t place_of(std::string_view key) const {
        if (indexed()) return index.find(key, key_at());
        for (std::size_t i = 0; i < keys.size(); ++i)
            if (keys[i].present() && keys[i].text() == key) return i;
        return none;
    }

    std::size_t present(std::string_view key) const {
        const std::size_t place = place_of(key);
        if (place == none) throw Failure{failure::invalid_call};
        return place;
    }

    void build_index() {
        index.start(records.capacity());
        enter_keys();
    }

    /// After records have moved. Takes no memory: there are no more keys than before.
    void renew_index() const {
        index.forget_keys();
        enter_keys();
    }

    void enter_keys() const {
        for (std::size_t i = 0; i < keys.size(); ++i)
            if (keys[i].present()) index.add_new(keys[i].text(), i, key_at());
    }

    void close_gaps() const {
        if (gaps == 0) return;
        std::size_t kept = 0;
        for (std::size_t i = 0; i < records.size(); ++i) {
            if (!records[i]) continue;
            if (i != kept && i < keys.size()) keys[kept] = std::exchange(keys[i], RecordKey());
            if (i != kept) records[kept] = std::move(records[i]);
            ++kept;
        }
        records.resize(kept);
        keys.resize(std::min(keys.size(), kept));
        gaps = 0;
        if (records.size() <= largest_without_index)
            index.clear();
        else if (indexed())
            renew_index();
    }

    // Closing gaps changes nothing that a caller can see, so a reader may do it.
    mutable std::vector<Item> records;   // an empty one was removed, its gap not yet closed
    mutable std::vector<RecordKey> keys; // of the records in front; those behind the last key have none
    mutable KeyIndex index;
    mutable std::size_t gaps = 0;

    static inline std::uint64_t changes_of_all = 0;
    std::uint64_t last_change = ++changes_of_all;
};

/// A place that holds a collection: empty at first use, also after it was dropped. A copy of the place holds
/// the same collection, so that a dialog can work on a unit's own records.
template <class T> class CollectionRef {
  public:
    CollectionRef() = default;
    CollectionRef(const CollectionRef& other) : held(other.made()) {}
    CollectionRef& operator=(const CollectionRef& other) {
        if (this != &other) hold(other.made());
        return *this;
    }
    ~CollectionRef() = default;

    Collection<T>* operator->() const { return made().get(); }
    Collection<T>& operator*() const { return *made(); }
    auto begin() const { return made()->begin(); }
    auto end() const { return made()->end(); }

    /// Lets go of the collection; the next use finds a new, empty one.
    void drop() { hold(nullptr); }
    bool empty() const { return !held || held->empty(); }
    std::size_t count() const { return held ? held->count() : 0; }

  private:
    void hold(std::shared_ptr<Collection<T>> other) {
        ListChanges<T>::add_one();
        held = std::move(other);
    }

    const std::shared_ptr<Collection<T>>& made() const {
        if (!held) held = std::make_shared<Collection<T>>();
        return held;
    }

    mutable std::shared_ptr<Collection<T>> held;
};
