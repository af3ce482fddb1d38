#include "mapview/map_mouse.h"

#include "core/numbers.h"
#include "core/trap.h"
#include "mapview/grid_reference.h"
#include "mapview/scrolling.h"

namespace {

constexpr int right_button = 2;

void show_coordinates(Program& program, std::int16_t& x, std::int16_t& y) {
    std::string east;
    std::string north;
    pixel_to_grid(program, x, y, east, north);
    program.main.sbarMap.panels[0] = "Eastern: " + east + " - Northern: " + north;
}

} // namespace

void picMap_MouseDown(Program& program, const MapPress& press) {
    trap(program, " when pressing a mouse button on the map.", [&] {
        if (press.button != right_button) return;
        program.main.popup_x = to_int16(press.x);
        program.main.popup_y = to_int16(press.y);
    });
}

void picMap_MouseMove(Program& program, const MapPress& press) {
    trap(program, " when moving the mouse.", [&] {
        frmMain& main = program.main;
        main.current_x = to_int16(press.x);
        main.current_y = to_int16(press.y);
        edge_scroll(program, press.x, press.y);
        // The conversion adds 48 to `current_y` itself: who reads that field allows for it.
        show_coordinates(program, main.current_x, main.current_y);
    });
}

void picMap_MouseUp(Program& program, const MapPress& press) {
    trap(program, " when releasing a mouse button.", [&] {
        if (press.button == right_button) pan_map(program, press.x, press.y);
    });
}

void control_MouseMove(Program& program, const MapPress& press) {
    trap(program, " when moving the mouse.", [&] {
        edge_scroll(program, press.x, press.y);
        std::int16_t x = to_int16(press.x);
        std::int16_t y = to_int16(press.y);
        show_coordinates(program, x, y);
    });
}
