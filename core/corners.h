#pragma once

#include <cstdint>

// Where a figure's corners lie is worked out once and kept with it, so that a paint need not look at the
// corners of what is out of view. A count tells that any corner, or any list of them, has changed since.

class CornerChanges {
  public:
    static std::uint64_t count() { return changes; }
    static void add_one() { ++changes; }

  private:
    static inline std::uint64_t changes = 0;
};

/// Whether records of this kind are corners, so that each change of a list of them counts.
template <class T> inline constexpr bool is_corner = false;

/// A coordinate of a corner that can be moved.
class Coordinate {
  public:
    Coordinate() = default;
    Coordinate(std::int32_t value) : value(value) {}
    Coordinate(const Coordinate&) = default;
    ~Coordinate() = default;

    Coordinate& operator=(std::int32_t changed) {
        value = changed;
        CornerChanges::add_one();
        return *this;
    }
    Coordinate& operator=(const Coordinate& other) { return *this = other.value; }

    operator std::int32_t() const { return value; }

  private:
    std::int32_t value = 0;
};

/// What was worked out from corners, good until one of them changes.
template <class Value> class FromCorners {
  public:
    template <class WorkOut> const Value& get(WorkOut work_out) const {
        if (as_of != CornerChanges::count()) {
            value = work_out();
            as_of = CornerChanges::count();
        }
        return value;
    }

  private:
    static constexpr std::uint64_t never = ~std::uint64_t{0};

    mutable Value value{};
    mutable std::uint64_t as_of = never;
};
