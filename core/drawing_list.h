#pragma once

#include "core/surface.h"

#include <cstddef>
#include <string>
#include <vector>

/// A surface that keeps what is drawn on it, each figure with the pen as it stood, as far as it is wanted.
/// The window replays the figures that are in view, as often as the map is scrolled or uncovered.
class DrawingList : public Surface {
  public:
    enum class Kind : std::uint8_t { line, circle, pie, polygon, print };

    struct Figure {
        Kind kind;
        Pen pen;
        std::vector<Point> points; // ends, centre, corners, or the text's top left
        double radius = 0;
        double start = 0;
        double end = 0;
        std::string text;
        Bounds bounds; // what the figure can touch, width of the pen included

        bool operator==(const Figure& other) const {
            return kind == other.kind && pen == other.pen && points == other.points &&
                   radius == other.radius && start == other.start && end == other.end && text == other.text;
        }
    };

    void line(Point from, Point to) override;
    void circle(Point centre, double radius) override;
    void pie(Point centre, double radius, double start, double end) override;
    void polygon(const std::vector<Point>& points) override;
    void print(Point at, const std::string& text) override;

    /// Removes the figures; the pen stays.
    void clear() { drawn.clear(); }

    const std::vector<Figure>& figures() const { return drawn; }

    /// Draws the figures that can touch the wanted area on another surface.
    void replay(Surface& target, const Bounds& wanted) const;

  private:
    /// A new figure of these bounds, or nothing when it is not wanted.
    Figure* keep(Kind kind, const Bounds& bounds);
    Figure* keep_round(Kind kind, Point centre, double radius);

    std::vector<Figure> drawn;
};
