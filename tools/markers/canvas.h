#pragma once

#include <array>
#include <string>
#include <string_view>

/// A marker picture of 29 x 31 pixels in three colours.
class Canvas {
  public:
    static constexpr int width = 29;
    static constexpr int height = 31;
    enum Ink : unsigned char {
        tinted = 0, // pure white: the program shows the unit's colour there
        paper = 1,  // nearly white, which stays
        black = 2
    };

    Canvas() { pixels.fill(tinted); }

    Ink at(int x, int y) const { return pixels[static_cast<std::size_t>(y * width + x)]; }
    void set(int x, int y, Ink ink = black);
    void fill(int left, int top, int right, int bottom, Ink ink = black);
    void line(int x1, int y1, int x2, int y2);
    void disc(double x, double y, double radius);
    void ring(double x, double y, double radius);
    void oval(int left, int top, int right, int bottom);
    /// Letters of 3 x 5 pixels, one apart.
    void text(int x, int y, std::string_view letters);

  private:
    std::array<Ink, width * height> pixels;
};

/// Writes a plain GIF: one frame, no transparency, not interlaced.
bool write_gif(const Canvas& canvas, const std::string& path);
