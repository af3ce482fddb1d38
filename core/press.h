#pragma once

#include <cstdint>
#include <span>

struct Program;

/// The mouse over the map, in map pixels. Buttons are 1 left, 2 right, 4 middle.
struct MapPress {
    int button = 0;
    int shift = 0; // 1 Shift, 2 Ctrl
    double x = 0;
    double y = 0;
    bool on_bare_map = true; // not on a marker, a label or a caption
};

inline constexpr int left_button = 1;
inline constexpr int right_button = 2;
inline constexpr int shift_key = 1;
inline constexpr int ctrl_key = 2;

/// What a press is offered to next: nothing more, or the rows that follow.
enum class Outcome : std::uint8_t { done, goes_on };

/// What can be pressed. A marker is asked in three steps, between which it acts itself.
namespace press_on {
inline constexpr unsigned map = 1; // labels and captions of shapes too
inline constexpr unsigned marker_first = 2;
inline constexpr unsigned marker_middle = 4;
inline constexpr unsigned marker_last = 8;
} // namespace press_on

/// One row of the order in which a press is offered to the tools.
struct PressRow {
    int number;
    unsigned targets; // sum of `press_on`
    int button;       // 0: any
    bool (*applies)(const Program& program);
    Outcome (*act)(Program& program, const MapPress& press);
};

/// What a tool does when the pointer moves over the map or what stands on it.
struct MoveRow {
    bool (*applies)(const Program& program);
    void (*act)(Program& program, const MapPress& press);
};

/// The tools of the map, in the order in which they are asked.
struct ToolOrder {
    std::span<const PressRow> presses;
    std::span<const MoveRow> moves;
};
