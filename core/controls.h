#pragma once

#include "core/colours.h"

#include <cstdint>
#include <string>
#include <vector>

// Plain twins of the controls on screen: what a rule reads and sets. Windows show them and nothing more.

struct TextBox {
    std::string text;
    bool enabled = true;
    bool all_selected = false;
};

struct Label {
    std::string caption;
};

struct CheckBox {
    bool value = false;
    bool enabled = true;
};

struct OptionButton {
    bool value = false;
    bool enabled = true;
};

struct ListBox {
    std::vector<std::string> rows;
    int selected = -1; // 0-based row, -1: none
    bool enabled = true;
};

struct ComboBox {
    std::string text;
    std::vector<std::string> rows;
    bool enabled = true;
};

/// A push button; a toggle shows its state by its background.
struct Button {
    bool enabled = true;
    std::int32_t colour = colour::button_face;

    bool on() const { return colour == colour::button_shadow; }
    void show_on(bool on) { colour = on ? colour::button_shadow : colour::button_face; }
};

struct MenuEntry {
    bool enabled = true;
    bool checked = false;
};

struct ScrollBar {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
    std::int16_t min = 0;
    std::int16_t max = 0; // below 0 where the map is smaller than its window
    std::int16_t value = 0;
    std::int16_t large_change = 1;
    std::int16_t small_change = 1;
};

/// A picture box: a panel, or a surface that layers draw on. Pixels, relative to its container.
struct PictureBox {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
    double border = 0; // on each side; the inside is that much smaller
    bool visible = true;

    double scale_width() const { return width - 2 * border; }
    double scale_height() const { return height - 2 * border; }
};

/// A picture box that shows a colour.
struct ColourBox : PictureBox {
    std::int32_t back_colour = 0;
};

/// A straight line over the map.
struct LineControl {
    double x1 = 0;
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;
    bool visible = false;
    std::int16_t width = 1;
    std::int32_t colour = 0;
};

/// An outline over a picture.
struct ShapeControl {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
    bool visible = false;
    std::int16_t border_width = 1;
};

struct Timer {
    int interval = 0; // milliseconds
    bool enabled = false;
};

/// A look of text, sizes in points.
struct Font {
    std::string name;
    double size = 8;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikethru = false;
};
