#pragma once

#include <QPointF>

#include <cmath>
#include <cstdint>
#include <vector>

/// Chance that is the same on every machine: a hash of a position and a seed, 0 to 1.
inline double chance(std::int64_t x, std::int64_t y, std::uint64_t seed) {
    std::uint64_t z = static_cast<std::uint64_t>(x) * 0x9E3779B97F4A7C15U +
                      static_cast<std::uint64_t>(y) * 0xC2B2AE3D27D4EB4FU + seed * 0x165667B19E3779F9U;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBU;
    z ^= z >> 31;
    return static_cast<double>(z >> 11) / 9007199254740992.0;
}

/// Smooth noise, -1 to 1, with features of about the given size.
double noise(double x, double y, double size, std::uint64_t seed);

/// A value at every node of a grid over the map, smooth between them. Coordinates are map pixels.
class Field {
  public:
    static constexpr int spacing = 10;

    Field(int map_width, int map_height)
        : columns(map_width / spacing + 2), rows(map_height / spacing + 2),
          values(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows)) {}

    double& node(int column, int row) { return values[index(column, row)]; }
    double node(int column, int row) const { return values[index(column, row)]; }
    double at(QPointF point) const;
    /// The way down, not of unit length.
    QPointF slope(QPointF point) const;

    int columns;
    int rows;

  private:
    std::size_t index(int column, int row) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns) +
               static_cast<std::size_t>(column);
    }
    std::vector<double> values;
};

/// A smooth curve through the points, a point about every `step` pixels.
std::vector<QPointF> smooth_curve(const std::vector<QPointF>& points, double step);

/// Distance of a point from a curve, and how far along the curve (0 to 1) its nearest point lies.
struct Nearest {
    double distance = 0;
    double along = 0;
};
Nearest nearest_on(const std::vector<QPointF>& curve, QPointF point);
