#pragma once

/// A direction from one point to another as arrowheads and boundaries use it.
struct SegmentHeading {
    int degrees = 0;   // 0 east, 90 up, counter-clockwise on the screen
    double length = 0; // pixels
};

/// The heading from (x1, y1) to (x2, y2), y down. Of two equal points it is 270.
SegmentHeading segment_heading(double x1, double y1, double x2, double y2);

/// Sine and cosine of an angle in degrees with the pi of the tool, 3.14 and no better: stored arrowheads and
/// boundaries agree with the ones made here.
double coarse_sin(double degrees);
double coarse_cos(double degrees);
inline constexpr double coarse_pi = 3.14;
