#include "mapview/grid.h"

#include "core/numbers.h"
#include "mapview/grid_reference.h"

namespace {

constexpr double first_line_y = pixels_per_km - grid_offset;

int kilometres(double pixels) { return static_cast<int>(to_long(pixels / pixels_per_km)); }

void ruler_pen(Pen& pen, const Font& font) {
    pen.ForeColor = colour::ruler_text;
    pen.FontSize = static_cast<int>(to_long(font.size));
    pen.FontBold = font.bold;
}

} // namespace

void reset_pen(Program& program, Painting& painting) {
    static_cast<void>(program);
    painting.map.pen.DrawWidth = 1;
    painting.map.pen.ForeColor = 0xC00000;
    painting.map.pen.DrawStyle = 0;
}

bool grid_is_shown(const Program& program) { return program.campaign.gShowGrid; }

void draw_grid(Program& program, Painting& painting) {
    const PictureBox& map = program.main.picMap;
    const int columns = kilometres(map.width);
    for (int i = 0; i <= columns; ++i) {
        const double x = pixels_per_km * i + pixels_per_km;
        painting.map.line({x, 0}, {x, map.height});
    }
    const int rows = kilometres(map.height);
    for (int i = 0; i <= rows - 2; ++i) {
        const double y = pixels_per_km * i + first_line_y;
        painting.map.line({0, y}, {map.width, y});
    }
}

void draw_rulers(Program& program, Painting& painting) {
    const frmMain& main = program.main;
    painting.hcoord.clear();
    ruler_pen(painting.hcoord.pen, main.ruler_font);
    const int columns = kilometres(main.picMap.width);
    for (int i = 1; i <= columns; ++i)
        painting.hcoord.print({static_cast<double>(pixels_per_km * i - 6), -2},
                              last_two_digits(i + program.campaign.gMapEast0));
    painting.vcoord.clear();
    ruler_pen(painting.vcoord.pen, main.ruler_font);
    // Rounded, where the grid reference takes the whole part: with less than half a kilometre of rest the
    // ruler reads one less.
    const int rows = kilometres(main.picMap.height);
    for (int i = 0; i <= rows - 2; ++i)
        painting.vcoord.print({-1, pixels_per_km * i - 6 + first_line_y}, last_two_digits(rows - i - 1));
}

void cmdGrid_Click(Program& program) {
    program.campaign.gShowGrid = !program.campaign.gShowGrid;
    program.main.cmdGrid.show_on(program.campaign.gShowGrid);
    program.main.picMap.Refresh();
}
