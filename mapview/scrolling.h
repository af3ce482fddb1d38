#pragma once

#include "core/program.h"

/// Move the map, its ruler and the overview box to where the scroll bar stands.
void scrlHMap_Change(Program& program);
void scrlVMap_Change(Program& program);
/// The thumb is being dragged: the map follows it.
void scrlHMap_Scroll(Program& program);
void scrlVMap_Scroll(Program& program);

/// Set a scroll bar; its Change runs when the value is a new one.
void scroll_horizontally_to(Program& program, double value);
void scroll_vertically_to(Program& program, double value);

/// Scrolls 10 pixels when the pointer, in map pixels, is at an edge of the map window and edge scrolling is
/// on.
void edge_scroll(Program& program, double x, double y);
/// Toggles edge scrolling.
void cmdEdgescroll_Click(Program& program);

/// End of a right-button pan at this map pixel: the point that was pressed comes under the pointer. Fails
/// with 6 when the way is beyond Int16.
void pan_map(Program& program, double x, double y);

/// Brings a map pixel to the middle of the window, as far as the map reaches.
void center_map_on(Program& program, double x, double y);
