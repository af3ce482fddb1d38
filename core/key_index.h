#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <utility>
#include <vector>

/// Finds the place of a key in a list of keys that is kept elsewhere. Marks of a byte each tell nearly always
/// whether a slot is the one looked for: those of thousands of keys stay in the processor's cache, and no key
/// is stored twice.
class KeyIndex {
  public:
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    bool empty() const { return marks.empty(); }
    void clear() { *this = {}; }
    /// Forgets all keys and keeps their room.
    void forget_keys() {
        std::fill(marks.begin(), marks.end(), unused);
        used = 0;
    }
    /// Forgets all keys and makes room for so many.
    void start(std::size_t keys) {
        const std::size_t slots = std::bit_ceil(std::max(2 * keys, smallest));
        std::vector<std::uint8_t> fresh_marks(slots, unused);
        places = std::vector<std::uint32_t>(slots);
        marks = std::move(fresh_marks);
        used = 0;
    }

    /// The place of the key; `key_at(place)` answers the key that stands there.
    template <class KeyAt> std::size_t find(std::string_view key, KeyAt key_at) const {
        const std::size_t hash = hash_of(key);
        const std::uint8_t mark = mark_of(hash);
        for (std::size_t at = slot_of(hash);; at = next(at)) {
            if (marks[at] == unused) return none;
            if (marks[at] == mark && key_at(places[at]) == key) return places[at];
        }
    }

    /// Notes a key and answers true, or answers false when it is there; `key_at` as above.
    template <class KeyAt> bool add_new(std::string_view key, std::size_t place, KeyAt key_at) {
        if (2 * (used + 1) > marks.size()) enlarge(key_at);
        const std::size_t hash = hash_of(key);
        const std::uint8_t mark = mark_of(hash);
        std::size_t at = slot_of(hash);
        for (; marks[at] != unused; at = next(at))
            if (marks[at] == mark && key_at(places[at]) == key) return false;
        marks[at] = mark;
        places[at] = static_cast<std::uint32_t>(place);
        ++used;
        return true;
    }

    /// Forgets a key that is there, at this place.
    void remove(std::string_view key, std::size_t place) {
        std::size_t at = slot_of(hash_of(key));
        while (marks[at] <= removed || places[at] != place) at = next(at);
        marks[at] = removed;
    }

  private:
    static constexpr std::uint8_t unused = 0;
    static constexpr std::uint8_t removed = 1;
    static constexpr std::size_t smallest = 32;

    static std::size_t hash_of(std::string_view key) { return std::hash<std::string_view>{}(key); }
    // Of the bits that choose no slot; never one of the two above.
    static std::uint8_t mark_of(std::size_t hash) { return static_cast<std::uint8_t>((hash >> 56) | 2); }

    std::size_t slot_of(std::size_t hash) const { return hash & (marks.size() - 1); }
    std::size_t next(std::size_t at) const { return slot_of(at + 1); }

    template <class KeyAt> void enlarge(KeyAt key_at) {
        KeyIndex larger;
        larger.start(marks.size());
        for (std::size_t at = 0; at < marks.size(); ++at)
            if (marks[at] > removed) larger.add_new(key_at(places[at]), places[at], key_at);
        *this = std::move(larger);
    }

    std::vector<std::uint8_t> marks;
    std::vector<std::uint32_t> places;
    std::size_t used = 0; // slots that are not unused, removed ones included
};
