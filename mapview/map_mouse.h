#pragma once

#include "core/program.h"
#include "mapview/hit_target.h"

// The mouse over the map and what stands on it. Each has a trap of its own; a failure leaves the state as it
// then stands.

/// A press, given to the rows of the map, or first to the marker that was hit.
void mouse_down(Program& program, const HitTarget& target, MapPress press);
/// The end of a press whose release goes elsewhere: what only that would end must not stay.
void end_press(Program& program);
/// The pointer moves; while a button is down, over what was pressed.
void mouse_move(Program& program, const HitTarget& target, const MapPress& press);
/// A release over the map after a press there.
void picMap_MouseUp(Program& program, const MapPress& press);
/// A release after a press on a marker or a label: it acts on nothing.
void control_MouseUp(Program& program, const HitTarget& target);

/// Where a dragged control can be dropped.
enum class DropSite : std::uint8_t { nowhere, map, tray, overview };

/// What is dragged is over a place: tells where its centre would land.
void drag_over(Program& program, DropSite site, double x, double y);
/// The end of a drag.
void drag_drop(Program& program, DropSite site, double x, double y);
