#pragma once

#include "core/controls.h"

#include <cstdint>
#include <string>
#include <vector>

/// The one pen of a drawing surface. What a layer leaves, the next one finds.
struct Pen {
    std::int32_t ForeColor = 0;
    std::int32_t FillColor = 0;
    int FillStyle = 1; // 0 solid, 1 transparent, 2 horizontal, 3 vertical, 7 diagonal cross
    int DrawStyle = 0; // 0 solid, 1 dash, 2 dot, 3 dash-dot, 4 dash-dot-dot
    int DrawWidth = 1;
    int DrawMode = 13; // 13 copy, 9 mask: colour AND what is there
    int FontSize = 8;  // points
    bool FontBold = false;

    bool operator==(const Pen&) const = default;
};

struct Point {
    double x = 0;
    double y = 0;

    bool operator==(const Point&) const = default;
};

/// A drawing surface with one pen. Pixels, y down; angles in radians, counter-clockwise from the east.
class Surface {
  public:
    Surface() = default;
    Surface(const Surface&) = default;
    Surface& operator=(const Surface&) = default;
    Surface(Surface&&) = default;
    Surface& operator=(Surface&&) = default;
    virtual ~Surface() = default;

    Pen pen;

    virtual void line(Point from, Point to) = 0;
    virtual void circle(Point centre, double radius) = 0;
    /// The slice from start to end counter-clockwise, closed to the centre.
    virtual void pie(Point centre, double radius, double start, double end) = 0;
    virtual void polygon(const std::vector<Point>& points) = 0;
    /// The text with its top left corner at the point; further lines start at the same x.
    virtual void print(Point at, const std::string& text) = 0;
};
