#include "tools/markers/canvas.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <vector>

#include <gif_lib.h>
#include <sys/stat.h>

namespace {

struct Letter {
    char letter;
    std::array<const char*, 5> rows;
};

constexpr std::array<Letter, 17> letters{{{'A', {".#.", "#.#", "###", "#.#", "#.#"}},
                                          {'B', {"##.", "#.#", "##.", "#.#", "##."}},
                                          {'C', {".##", "#..", "#..", "#..", ".##"}},
                                          {'E', {"###", "#..", "##.", "#..", "###"}},
                                          {'F', {"###", "#..", "##.", "#..", "#.."}},
                                          {'G', {".##", "#..", "#.#", "#.#", ".##"}},
                                          {'H', {"#.#", "#.#", "###", "#.#", "#.#"}},
                                          {'I', {"###", ".#.", ".#.", ".#.", "###"}},
                                          {'K', {"#.#", "#.#", "##.", "#.#", "#.#"}},
                                          {'L', {"#..", "#..", "#..", "#..", "###"}},
                                          {'M', {"#.#", "###", "###", "#.#", "#.#"}},
                                          {'N', {"##.", "#.#", "#.#", "#.#", "#.#"}},
                                          {'P', {"##.", "#.#", "##.", "#..", "#.."}},
                                          {'R', {"##.", "#.#", "##.", "#.#", "#.#"}},
                                          {'S', {".##", "#..", ".#.", "..#", "##."}},
                                          {'T', {"###", ".#.", ".#.", ".#.", ".#."}},
                                          {'U', {"#.#", "#.#", "#.#", "#.#", "###"}}}};

} // namespace

void Canvas::set(int x, int y, Ink ink) {
    if (x >= 0 && y >= 0 && x < width && y < height) pixels[static_cast<std::size_t>(y * width + x)] = ink;
}

void Canvas::fill(int left, int top, int right, int bottom, Ink ink) {
    for (int y = top; y <= bottom; ++y)
        for (int x = left; x <= right; ++x) set(x, y, ink);
}

void Canvas::line(int x1, int y1, int x2, int y2) {
    const int steps = std::max({std::abs(x2 - x1), std::abs(y2 - y1), 1});
    for (int i = 0; i <= steps; ++i)
        set(static_cast<int>(std::lround(x1 + (x2 - x1) * static_cast<double>(i) / steps)),
            static_cast<int>(std::lround(y1 + (y2 - y1) * static_cast<double>(i) / steps)));
}

void Canvas::disc(double x, double y, double radius) {
    for (int py = 0; py < height; ++py)
        for (int px = 0; px < width; ++px)
            if (std::hypot(px - x, py - y) <= radius + 0.3) set(px, py);
}

void Canvas::ring(double x, double y, double radius) {
    for (int py = 0; py < height; ++py)
        for (int px = 0; px < width; ++px)
            if (std::abs(std::hypot(px - x, py - y) - radius) <= 0.5) set(px, py);
}

void Canvas::oval(int left, int top, int right, int bottom) {
    const int inset = (bottom - top) / 3;
    line(left + inset, top, right - inset, top);
    line(left + inset, bottom, right - inset, bottom);
    line(left, top + inset, left, bottom - inset);
    line(right, top + inset, right, bottom - inset);
    line(left, top + inset, left + inset, top);
    line(right, top + inset, right - inset, top);
    line(left, bottom - inset, left + inset, bottom);
    line(right, bottom - inset, right - inset, bottom);
}

void Canvas::text(int x, int y, std::string_view word) {
    for (const char c : word) {
        const auto* const found =
            std::find_if(letters.begin(), letters.end(), [&](const Letter& l) { return l.letter == c; });
        if (found == letters.end()) continue;
        for (int row = 0; row < 5; ++row)
            for (int column = 0; column < 3; ++column)
                if (found->rows[static_cast<std::size_t>(row)][column] == '#') set(x + column, y + row);
        x += 4;
    }
}

bool write_gif(const Canvas& canvas, const std::string& path) {
    std::array<GifColorType, 4> colours{{{255, 255, 255}, {254, 254, 254}, {0, 0, 0}, {0, 0, 0}}};
    int error = 0;
    GifFileType* const gif = EGifOpenFileName(path.c_str(), false, &error);
    if (gif == nullptr) return false;
    ColorMapObject* const palette = GifMakeMapObject(4, colours.data());
    EGifSetGifVersion(gif, false);
    bool written = EGifPutScreenDesc(gif, Canvas::width, Canvas::height, 2, 0, palette) == GIF_OK &&
                   EGifPutImageDesc(gif, 0, 0, Canvas::width, Canvas::height, false, nullptr) == GIF_OK;
    for (int y = 0; written && y < Canvas::height; ++y) {
        std::array<GifPixelType, Canvas::width> row{};
        for (int x = 0; x < Canvas::width; ++x) row[static_cast<std::size_t>(x)] = canvas.at(x, y);
        written = EGifPutLine(gif, row.data(), Canvas::width) == GIF_OK;
    }
    GifFreeMapObject(palette);
    written = EGifCloseFile(gif, &error) == GIF_OK && written;
    // The library makes files that only their owner may read.
    return written && ::chmod(path.c_str(), 0644) == 0;
}
