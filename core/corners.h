#pragma once

#include <cstdint>

// Where figures lie is worked out once and kept, so that a paint need not look at what is out of view. Counts
// tell that something it was worked out from has changed since.

/// Counts changes of one kind.
template <class Kind> class Changes {
  public:
    static std::uint64_t count() { return changes; }
    static void add_one() { ++changes; }

  private:
    static inline std::uint64_t changes = 0;
};

/// Any corner of a figure, or any list of them.
using CornerChanges = Changes<struct CornerKind>;
/// The place of any unit on the map.
using UnitMoves = Changes<struct UnitPlaceKind>;

/// Whether records of this kind are corners, so that each change of a list of them counts.
template <class T> inline constexpr bool is_corner = false;

/// A coordinate whose changes are counted.
template <class Value, class Count> class CountedCoordinate {
  public:
    CountedCoordinate() = default;
    CountedCoordinate(Value value) : value(value) {}
    CountedCoordinate(const CountedCoordinate&) = default;
    ~CountedCoordinate() = default;

    CountedCoordinate& operator=(Value changed) {
        value = changed;
        Count::add_one();
        return *this;
    }
    CountedCoordinate& operator=(const CountedCoordinate& other) { return *this = other.value; }

    operator Value() const { return value; }

  private:
    Value value = 0;
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
