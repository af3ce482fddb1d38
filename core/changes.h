#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

// What a paint needs of thousands of records is worked out once and kept, so that it need not look at each of
// them. Counts tell that something it was worked out from has changed since.

/// Counts changes of one kind.
template <class Kind> class Changes {
  public:
    static std::uint64_t count() { return changes; }
    static void add_one() { ++changes; }

  private:
    static inline std::uint64_t changes = 0;
};

/// Any corner of a figure, any list of them, or any list of waypoints.
using CornerChanges = Changes<struct CornerKind>;
/// The place of any unit on the map.
using UnitMoves = Changes<struct UnitPlaceKind>;
/// The force elements of any unit: which there are, and of which kind. All else of them is read when it is
/// used.
using HoldingChanges = Changes<struct HoldingKind>;
/// Which record a control over the map belongs to.
using TagChanges = Changes<struct TagKind>;

/// What a change of a list of such records counts as: of most kinds, as none.
template <class T> struct ListChanges {
    static void add_one() {}
};

/// A value whose changes are counted: each assignment, but neither how it began nor that it was copied or
/// moved.
template <class Value, class Count> class Counted {
  public:
    Counted() = default;
    Counted(Value value) : value(std::move(value)) {}
    Counted(const Counted&) = default;
    Counted(Counted&&) noexcept = default;
    ~Counted() = default;

    Counted& operator=(Value changed) {
        value = std::move(changed);
        Count::add_one();
        return *this;
    }
    Counted& operator=(const Counted& other) { return *this = other.value; }

    operator const Value&() const { return value; }

  private:
    Value value{};
};

/// What was worked out from many records, good as long as the counts that tell of their changes stand.
template <class Value, std::size_t counts> class Kept {
  public:
    /// The value as of these counts. A failure to work it out leaves it to the next use.
    template <class WorkOut, class... Count>
    const Value& get(WorkOut work_out, Count... count) requires(sizeof...(Count) == counts) {
        const Counts now{count...};
        if (as_of != now) {
            value = work_out();
            as_of = now;
        }
        return value;
    }

  private:
    using Counts = std::array<std::uint64_t, counts>;

    static constexpr Counts never() {
        Counts none{};
        none.fill(~std::uint64_t{0});
        return none;
    }

    Value value{};
    Counts as_of = never();
};

/// What was worked out from corners, good until one of them changes.
template <class Value> class FromCorners {
  public:
    template <class WorkOut> const Value& get(WorkOut work_out) const {
        return kept.get(work_out, CornerChanges::count());
    }

  private:
    mutable Kept<Value, 1> kept;
};
