#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

/// Finds the place of a key in a list of keys that is kept elsewhere. The places lie in one block of memory
/// and no key is stored twice, which is what makes thousands of look-ups quick.
class KeyIndex {
  public:
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    bool empty() const { return places.empty(); }
    void clear() { *this = {}; }

    /// The place of the key; `key_at(place)` answers the key that stands there.
    template <class KeyAt> std::size_t find(std::string_view key, KeyAt key_at) const {
        const std::uint32_t tag = tag_of(key);
        for (std::size_t at = tag & mask();; at = (at + 1) & mask()) {
            const Entry& entry = places[at];
            if (entry.place == unused) return none;
            if (entry.tag == tag && entry.place != removed && key_at(entry.place) == key) return entry.place;
        }
    }

    /// Notes a key that is not there yet.
    void add(std::string_view key, std::size_t place) {
        if (2 * (used + 1) > places.size()) enlarge();
        put({tag_of(key), static_cast<std::uint32_t>(place)});
    }

    /// Forgets a key that is there, at this place.
    void remove(std::string_view key, std::size_t place) {
        for (std::size_t at = tag_of(key) & mask();; at = (at + 1) & mask()) {
            if (places[at].place != place) continue;
            places[at].place = removed;
            return;
        }
    }

  private:
    struct Entry {
        std::uint32_t tag = 0;
        std::uint32_t place = unused;
    };

    static constexpr std::uint32_t unused = 0xFFFFFFFF;
    static constexpr std::uint32_t removed = 0xFFFFFFFE;
    static constexpr std::size_t smallest = 32;

    static std::uint32_t tag_of(std::string_view key) {
        return static_cast<std::uint32_t>(std::hash<std::string_view>{}(key));
    }

    std::size_t mask() const { return places.size() - 1; }

    void put(const Entry& entry) {
        std::size_t at = entry.tag & mask();
        while (places[at].place != unused) at = (at + 1) & mask();
        places[at] = entry;
        ++used;
    }

    void enlarge() {
        std::vector<Entry> before(places.empty() ? smallest : 2 * places.size());
        before.swap(places);
        used = 0;
        for (const Entry& entry : before)
            if (entry.place < removed) put(entry);
    }

    std::vector<Entry> places;
    std::size_t used = 0; // entries that are not unused, removed ones included
};
