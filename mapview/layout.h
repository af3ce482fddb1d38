#pragma once

#include "core/program.h"

/// Lays out the map's window, scroll bars, rulers and the overview box for the main window's size. Has a trap
/// of its own. Also known as `resize_map_window`.
void fit_main_window(Program& program);

/// The main window got a new size: outer width and height and inner width, in pixels. Does nothing while it
/// is minimised, that is with an inner width of 0.
void Form_Resize(Program& program, double width, double height, double scale_width);

/// Gives the rulers the map's length, and the overview box its first place.
void size_rulers(Program& program);
void size_overview_box(Program& program);
