#pragma once

#include "core/surface.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

/// A surface that keeps what is drawn on it, each figure with the pen as it stood, as far as it is wanted.
/// The window replays the figures that are in view, as often as the map is scrolled or uncovered.
class DrawingList : public Surface {
  public:
    enum class Kind : std::uint8_t { line, circle, pie, polygon, print };

    /// One figure as it was drawn.
    struct Figure {
        Kind kind;
        Pen pen;
        std::vector<Point> points; // ends, centre, corners, or the text's top left
        double radius = 0;
        double start = 0;
        double end = 0;
        std::string text;
    };

    void line(Point from, Point to) override;
    void path(const std::vector<Point>& corners) override;
    void circle(Point centre, double radius) override;
    void pie(Point centre, double radius, double start, double end) override;
    void polygon(const std::vector<Point>& points) override;
    void print(Point at, const std::string& text) override;

    /// Removes the figures; the pen stays.
    void clear();
    /// Draws all that a kept list holds, and takes its pen.
    void insert(std::shared_ptr<const DrawingList> list);

    bool empty() const { return entries.empty() && inserted.empty(); }
    std::vector<Figure> figures() const;
    bool same_figures(const DrawingList& other) const;

    /// Draws the figures that the other surface wants on it.
    void replay(Surface& target) const;

  private:
    // A large campaign has a hundred thousand figures, and each refresh makes them anew: pens, points and
    // letters stand in a row each, without an allocation of a figure's own.
    struct Entry {
        Kind kind;
        std::uint32_t pen;
        std::uint32_t first; // of its points; a circle's radius and a pie's angles stand behind its centre
        std::uint32_t count; // of the points of a line or polygon, of the letters of a text
        std::uint32_t first_letter;

        bool operator==(const Entry&) const = default;
    };

    /// A list that is drawn before the entry of this number.
    struct Inserted {
        std::size_t before;
        std::shared_ptr<const DrawingList> list;

        bool operator==(const Inserted&) const = default;
    };

    void keep(Kind kind, std::span<const Point> its_points, std::size_t count, const std::string& text = {});
    Bounds bounds_of_entry(const Entry& entry) const;
    void draw(const Entry& entry, Surface& target) const;

    std::vector<Entry> entries;
    std::vector<Pen> pens;
    std::vector<Point> points;
    std::string letters;
    std::vector<Inserted> inserted;
};
