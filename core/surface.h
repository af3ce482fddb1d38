#pragma once

#include "core/controls.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
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

/// A box along the axes, its edges included.
struct Bounds {
    double left = -std::numeric_limits<double>::infinity();
    double top = -std::numeric_limits<double>::infinity();
    double right = std::numeric_limits<double>::infinity();
    double bottom = std::numeric_limits<double>::infinity();

    /// The box that holds and meets nothing.
    static Bounds nothing() {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        return {infinity, infinity, -infinity, -infinity};
    }
    bool is_nothing() const { return left > right; }

    // No && here: where thousands of figures lie is anyone's guess, also the processor's.
    bool meets(const Bounds& other) const {
        return (left <= other.right) & (other.left <= right) & (top <= other.bottom) & (other.top <= bottom);
    }
    bool holds(const Bounds& other) const {
        return left <= other.left && other.right <= right && top <= other.top && other.bottom <= bottom;
    }
    Bounds grown_by(double margin) const {
        return {left - margin, top - margin, right + margin, bottom + margin};
    }
    Bounds moved_by(Point distance) const {
        return {left + distance.x, top + distance.y, right + distance.x, bottom + distance.y};
    }
    /// The smallest box that holds this one and the other.
    Bounds with(const Bounds& other) const {
        return {std::min(left, other.left), std::min(top, other.top), std::max(right, other.right),
                std::max(bottom, other.bottom)};
    }
};

/// A box in half the room, for one that is kept with each of many records. Its edges are exact to a
/// fraction of a pixel wherever a map can be.
struct SmallBounds {
    float left = 0;
    float top = 0;
    float right = 0;
    float bottom = 0;

    SmallBounds() = default;
    SmallBounds(const Bounds& box)
        : left(static_cast<float>(box.left)), top(static_cast<float>(box.top)),
          right(static_cast<float>(box.right)), bottom(static_cast<float>(box.bottom)) {}
    operator Bounds() const { return {left, top, right, bottom}; }
};

inline Bounds bounds_of(Point point) { return {point.x, point.y, point.x, point.y}; }

inline Bounds bounds_of(Point a, Point b) {
    return {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
}

/// What a text with its top left corner at the point can touch. Its size is the font's affair: this is an
/// outer bound for any common one.
inline Bounds text_bounds(Point at, std::string_view text, int font_size) {
    const double em = 2.0 * font_size;
    const auto letters = static_cast<double>(text.size());
    const auto lines = static_cast<double>(std::count(text.begin(), text.end(), '\n') + 1);
    return {at.x - em, at.y - em, at.x + em * (letters + 1), at.y + em * (lines + 1)};
}

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
    std::vector<Point> scratch; // room for the corners of a figure, made once for all of them
    Bounds wanted;              // what lies outside need not be drawn; the pen changes all the same

    bool wants(const Bounds& figure) const { return wanted.meets(figure); }

    virtual void line(Point from, Point to) = 0;
    /// A segment between each two neighbours.
    virtual void path(const std::vector<Point>& points) {
        for (std::size_t i = 1; i < points.size(); ++i) line(points[i - 1], points[i]);
    }
    virtual void circle(Point centre, double radius) = 0;
    /// The slice from start to end counter-clockwise, closed to the centre.
    virtual void pie(Point centre, double radius, double start, double end) = 0;
    virtual void polygon(const std::vector<Point>& points) = 0;
    /// The text with its top left corner at the point; further lines start at the same x.
    virtual void print(Point at, const std::string& text) = 0;
};
