#pragma once

#include "core/surface.h"

#include <QBrush>
#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QPen>

#include <cstdint>
#include <map>
#include <optional>
#include <tuple>

/// The drawing surface on a painter, without anti-aliasing. The device must be opaque: in mask mode colours
/// are combined with what is there by AND, outline and fill each for itself.
class PainterSurface : public Surface {
  public:
    explicit PainterSurface(QPainter& painter) : painter(painter) {}

    void line(Point from, Point to) override;
    void circle(Point centre, double radius) override;
    void pie(Point centre, double radius, double start, double end) override;
    void polygon(const std::vector<Point>& points) override;
    void print(Point at, const std::string& text) override;

    // Outlines of shapes on the map, which no layer draws.
    void rectangle(Point top_left, double width, double height, double corner_radius);
    void ellipse(Point top_left, double width, double height);

  private:
    /// A font and, in pixels, how its lines lie.
    struct Lettering {
        QFont font;
        int ascent;
        int line_height;
    };

    void apply_mode();
    const QPen& outline();
    QBrush fill();
    const Lettering& lettering();
    /// Fills first, then draws the outline over it; `outline_path` gives its path when it is dashed.
    template <class Draw, class Outline> void fill_and_outline(Draw draw, Outline outline_path);
    /// The library's own dashes begin anew at each edge of what is painted on.
    void outline_in_dashes(const QPainterPath& path);

    QPainter& painter;

    // Thousands of figures share a few pens, hatches and fonts, and each is dear to make.
    std::optional<Pen> outlined;
    QPen outline_pen;
    std::map<std::tuple<int, std::int32_t, bool>, QBrush> hatches; // by style, colour, mask
    std::map<std::pair<int, bool>, Lettering> letterings;          // by size, boldness
};
